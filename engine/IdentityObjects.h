#pragma once

class nxDb;

namespace engine {

// Installs the counter table SYS_IDS and the procedures GetIdentity and GetMaxIdentity in the
// new server database, inside one transaction on the destination handle's connection. The
// suite asks GetIdentity for each new SYS_RECORD number on the server, as Jet's autoincrement
// gave it before.
class IdentityObjects {
public:
    // `dest` is the open destination handle, with its metadata object bound.
    explicit IdentityObjects(nxDb& dest) noexcept;

    // True when all six scripts ran and were committed. On a failure the transaction is rolled
    // back, nxApp::ErrorBox("DbImport.CreateSysIDsTable()", false, false) tells it, and the
    // answer is false.
    bool CreateSysIDsTable() noexcept;

private:
    nxDb& m_dest;
};

} // namespace engine
