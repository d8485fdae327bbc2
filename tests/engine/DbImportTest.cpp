#include "engine/DbImport.h"

#include <gtest/gtest.h>

// Before the record job exists a stop request reaches nothing, so the flag stays clear and the
// run would go on: the checks and the creation of the database cannot be stopped.
TEST(DbImport, StopBeforeTheJobHasNoEffect) {
    DbImport run;
    run.DbSrc(QStringLiteral("C:\\Archivio\\QZSystem.mdb"));
    EXPECT_FALSE(run.Stopped());
    run.Stopped(true);
    EXPECT_FALSE(run.Stopped());
}
