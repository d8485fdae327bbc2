#include "frame/Edge.h"

#include "frame/nxApp.h"

#include "platform/ado/Error.h"
#include "platform/vb/Err.h"

#include <new>

using namespace Qt::StringLiterals;

namespace frame {
namespace {

constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kInternalError = 51;

} // namespace

vb::ErrRecord currentErrorRecord() noexcept {
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
        record.Number = kOutOfMemory;
        record.Description = u"Memoria esaurita"_s;
    } catch (const std::exception& e) {
        record.Number = kInternalError;
        record.Description = QString::fromUtf8(e.what());
        if (record.Description.isEmpty()) {
            record.Description = u"Errore interno"_s;
        }
    } catch (...) {
        record.Number = kInternalError;
        record.Description = u"Errore interno"_s;
    }
    return record;
}

void LoadAmbientError() {
    vb::Err() = currentErrorRecord();
}

void trapCurrentException(QStringView label, bool silent) {
    LoadAmbientError();
    nxApp::ErrorBox(label.toString(), silent, false);
}

} // namespace frame
