#include "frame/Edge.h"

#include "frame/nxApp.h"

#include "platform/vb/Err.h"

#if __has_include("platform/ado/Error.h")
#include "platform/ado/Error.h"
#define FRAME_KNOWS_ADO 1
#endif

#include <new>

using namespace Qt::StringLiterals;

namespace frame {
namespace {

constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kInternalError = 51;

vb::ErrRecord recordOfCurrentException() {
    vb::ErrRecord record;
    try {
        throw;
    } catch (const vb::RuntimeError& e) {
        record = e.record();
#ifdef FRAME_KNOWS_ADO
    } catch (const ado::Error& e) {
        record.Number = e.hresult();
        record.Source = e.source();
        record.Description = e.description();
#endif
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

} // namespace

void trapCurrentException(QStringView label, bool silent) {
    vb::Err() = recordOfCurrentException();
    nxApp::ErrorBox(label.toString(), silent, false);
}

} // namespace frame
