#include "recordset/RsTrap.h"

#include "frame/nxApp.h"

#include "platform/ado/Error.h"
#include "platform/vb/Err.h"

#include <exception>
#include <new>

using namespace Qt::StringLiterals;

namespace rs {

void LoadAmbientError() {
    vb::ErrRecord record;
    try {
        throw;
    } catch (const vb::RuntimeError& e) {
        record = e.record();
    } catch (const ado::Error& e) {
        record.Number = e.hresult();
        record.Source = e.source();
        record.Description = e.description();
    } catch (const std::bad_alloc&) {
        record.Number = 7;
        record.Description = vb::ErrorText(7);
    } catch (const std::exception& e) {
        record.Number = 51;
        record.Description = QString::fromUtf8(e.what());
    } catch (...) {
        record.Number = 51;
        record.Description = u"Errore interno"_s;
    }
    vb::Err() = record;
}

bool Refuse(const QString& label, const QString& text, bool silent) {
    vb::ErrRecord& err = vb::Err();
    err.Clear();
    err.Source = label;
    err.Description = text;
    nxApp::ErrorBox(label, silent, false);
    return false;
}

} // namespace rs
