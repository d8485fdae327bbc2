#include "engine/DbImport.h"

void DbImport::Stopped(bool /*value*/) {
    // No record job has been made yet: nothing is running that could stop, and the flag keeps
    // its value. The job is made once the identity objects exist.
}
