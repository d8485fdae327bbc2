#include "engine/IdentityObjects.h"

#include "engine/IdentityScripts.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"
#include "frame/nxApp.h"
#include "frame/Edge.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Enums.h"
#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

namespace engine {

IdentityObjects::IdentityObjects(nxDb& dest) noexcept : m_dest(dest) {}

bool IdentityObjects::CreateSysIDsTable() noexcept {
    ado::ConnectionPtr cn;
    bool began = false;
    try {
        const std::shared_ptr<nxConn>& meta = m_dest.ConnUtils();
        const long version = meta ? meta->DBMSVersion() : 0;
        cn = m_dest.cn();
        if (!cn) {
            vb::Raise(vb::errors::kObjectRequired, u"DbImport"_s,
                      vb::ErrorText(vb::errors::kObjectRequired));
        }
        cn->BeginTrans();
        began = true;
        for (const QString& script : IdentityScripts(version)) {
            cn->Execute(script, nullptr, ado::adExecuteNoRecords);
        }
        cn->CommitTrans();
        return true;
    } catch (...) {
        frame::LoadAmbientError();
    }
    // The failure is what the operator must see, so the rollback's own failure (a connection
    // already gone) is not allowed to cover it.
    const vb::ErrRecord failure = vb::Err();
    if (began && cn) {
        try {
            cn->RollbackTrans();
        } catch (...) {
        }
    }
    vb::Err() = failure;
    nxApp::ErrorBox(u"DbImport.CreateSysIDsTable()"_s, false, false);
    return false;
}

} // namespace engine
