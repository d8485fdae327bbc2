#include "recordset/RsTrap.h"

#include "frame/nxApp.h"

#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace rs {

bool Refuse(const QString& label, const QString& text, bool silent) {
    vb::ErrRecord& err = vb::Err();
    err.Clear();
    err.Source = label;
    err.Description = text;
    nxApp::ErrorBox(label, silent, false);
    return false;
}

} // namespace rs
