#include "dbaccess/nxDb.h"

#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxSys.h"

#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t kNotFound = -1;

// A database name filtered with like, so that a name that differs only by case is found.
bool catalogListed(ado::Connection& admin, const QString& name) {
    ado::RecordsetPtr rs = admin.OpenSchema(ado::SchemaEnum::adSchemaCatalogs);
    rs->setFilter(u"CATALOG_NAME like '"_s + name + u'\'');
    const bool listed = !(rs->Bof() && rs->Eof());
    rs->Close();
    return listed;
}

QString stateLine(long state) {
    switch (state) {
    case ado::adStateClosed:
        return u"Stato della connessione: Chiusa."_s;
    case ado::adStateExecuting:
        return u"Stato della connessione: Esecuzione di un comando in corso."_s;
    case ado::adStateFetching:
        return u"Stato della connessione: Righe in fase di lettura."_s;
    default:
        return {};
    }
}

} // namespace

nxDb::nxDb() : m_init(nxApp::IsInit()), m_jetPassword(u"brnzolvet52"_s) {}

nxDb::~nxDb() {
    DbClose();
}

bool nxDb::DbOpen(const QString& Name, long Flags, bool Silent, const QString& Provider,
                  const QString& Server, long CursorLocation, const QString& User,
                  const QString& Password, long EngineType) noexcept {
    if (!m_init || m_isOpened) {
        return false;
    }
    m_provider = Provider;
    m_dbType = nxApp::AdoConnectionDbType(Provider);
    if (m_dbType == -1) {
        return false;
    }
    m_name = Name;
    m_connectionString = u"Provider="_s + Provider;
    const bool create = (Flags & DbOpenCreate) != 0;
    bool shared = (Flags & DbOpenShared) != 0;

    return Edge(u"nxDb.DbOpen", Silent, false, [&] {
        return dbaccess::completingErr(Name, [&] {
            bool retried = false;
            for (;;) {
                try {
                    if (!retried) {
                        nxSys& sys = nxApp::Sys();
                        if (m_dbType == 0 && sys.FileExist(Name) && create &&
                            (Flags & DbOpenOverwrite) != 0 && !sys.FileRemove(Name, Silent)) {
                            return false;
                        }
                        m_isNew = false;
                        const bool found = m_dbType == 1
                                               ? openServer(Server, User, Password, create)
                                               : openJet(Flags, EngineType);
                        if (!found) {
                            vb::Raise(kNotFound, u"nxDb"_s, u"'"_s + Name + u"' non trovato."_s);
                        }
                        // A read-only file is opened for reading: Jet refuses write access.
                        m_isReadOnly = m_dbType == 0 && sys.GetAttr(Name, 1);
                    }
                    return openConnection(CursorLocation, shared);
                } catch (const std::exception& e) {
                    // A file or database held by someone else refuses one share mode with
                    // E_FAIL; the other one is tried once.
                    if (retried ||
                        dbaccess::failureNumber(e) != ado::toNumber(ado::HResult::E_UNSPECIFIED)) {
                        m_dbType = -1;
                        m_cn.reset();
                        throw;
                    }
                    retried = true;
                    shared = !shared;
                }
            }
        });
    });
}

bool nxDb::openServer(const QString& server, const QString& user, const QString& password,
                      bool create) {
    setDelimiters(true);
    m_serverName = server.isEmpty() ? nxApp::Sys().ComputerName() : server;
    const QString login = user.isEmpty() ? u";Trusted_Connection=yes"_s
                                         : u";User ID="_s + user + u";Password="_s + password;
    m_connectionString += u";Initial Catalog="_s + m_name + u";Data Source="_s + m_serverName +
                          login + u";Persist Security Info=true"_s +
                          u";Command Properties='Command Time Out=0'"_s +
                          u";Pooling=False;Connection Lifetime=1;Max Pool Size=10"_s;

    auto admin = ado::Connection::create();
    admin->setConnectionString(u"Provider="_s + m_provider +
                               u";Initial Catalog=Master;Data Source="_s + m_serverName + login);
    admin->setConnectionTimeout(5);
    admin->Open();
    if (!catalogListed(*admin, m_name) && create) {
        admin->Execute(u"create database "_s + m_name);
        m_isNew = true;
    }
    const bool found = catalogListed(*admin, m_name);
    admin->Close();
    return found;
}

bool nxDb::openJet(long flags, long engineType) {
    setDelimiters(false);
    m_serverName.clear();
    m_connectionString += u";Data Source="_s + m_name;
    const bool password = (flags & DbOpenPassword) != 0;
    if (password) {
        m_connectionString += u";Jet OLEDB:Database Password="_s + m_jetPassword;
    }
    nxSys& sys = nxApp::Sys();
    if (!sys.FileExist(m_name) && (flags & DbOpenCreate) != 0) {
        sys.DirMake(sys.GetDir(m_name));
        QString creation = m_connectionString;
        if (password) {
            creation += u";Jet OLEDB:Encrypt Database=true"_s;
        }
        creation += u";Jet OLEDB:Engine Type="_s + QString::number(engineType);
        auto catalog = ado::adox::Catalog::create();
        if (ado::ConnectionPtr c = catalog->Create(creation)) {
            c->Close();
        }
        catalog->setActiveConnection(ado::ConnectionPtr());
        m_isNew = true;
    }
    return sys.FileExist(m_name);
}

bool nxDb::openConnection(long cursorLocation, bool shared) {
    m_cn = ado::Connection::create();
    m_cn->setCursorLocation(static_cast<ado::CursorLocationEnum>(cursorLocation));
    m_cn->setConnectionString(m_connectionString);
    long mode = ado::adModeUnknown;
    if (m_isReadOnly) {
        mode += ado::adModeRead;
    }
    if (!shared) {
        mode += ado::adModeShareExclusive;
    }
    m_cn->setMode(mode);
    m_cn->setConnectionTimeout(5);
    m_cn->Open({}, {}, {}, ado::adOptionUnspecified);
    const bool opened = m_cn->State() == ado::adStateOpen;

    m_connUtils = std::make_shared<nxConn>();
    m_connUtils->Connection(m_cn);
    dbaccess::AppConn().Connection(m_cn);
    m_db = ado::adox::Catalog::create();
    m_db->setActiveConnection(m_cn);
    m_transLevel = 0;
    m_isOpened = true;
    return opened;
}

void nxDb::DbClose() noexcept {
    if (!m_isOpened) {
        return;
    }
    IgnoreErrors([&] {
        if (m_db) {
            m_db->setActiveConnection(ado::ConnectionPtr());
        }
    });
    m_db.reset();
    m_connUtils.reset();
    // Open levels are committed, never rolled back.
    while (m_transLevel > 0) {
        if (--m_transLevel == 0) {
            IgnoreErrors([&] { m_cn->CommitTrans(); });
        }
    }
    IgnoreErrors([&] { m_cn->Close(); });
    m_cn.reset();
    m_isOpened = false;
}

bool nxDb::BeginTrans(bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxDb.BeginTrans()", Silent, false, [&] {
        if (m_transLevel == 0) {
            m_cn->BeginTrans();
        }
        ++m_transLevel;
        return true;
    });
}

bool nxDb::CommitTrans(bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxDb.CommitTrans()", Silent, false, [&] {
        if (m_transLevel > 0 && --m_transLevel == 0) {
            m_cn->CommitTrans();
        }
        return true;
    });
}

bool nxDb::RollbackTrans(bool Silent) noexcept {
    if (!m_isOpened) {
        return false;
    }
    // A rollback at an inner level only lowers the count.
    return Edge(u"nxDb.RollbackTrans()", Silent, false, [&] {
        if (m_transLevel > 0 && --m_transLevel == 0) {
            m_cn->RollbackTrans();
        }
        return true;
    });
}

bool nxDb::Execute(const QString& Sql, bool Silent, long Options) noexcept {
    if (!m_isOpened) {
        return false;
    }
    return Edge(u"nxDb.Execute()", Silent, false, [&] {
        return dbaccess::completingErr(Sql, [&] {
            if (m_dbType != 1) {
                m_cn->Execute(Sql, nullptr, Options);
                return true;
            }
            // A connection of its own: data definition on the server must not wait for, nor
            // join, a transaction that cn holds open.
            auto c = ado::Connection::create();
            c->setConnectionString(m_cn->ConnectionString());
            c->Open({}, {}, {}, ado::adOptionUnspecified);
            c->Properties().Item(u"Multiple connections").setValue(false);
            for (;;) {
                const long state = c->State();
                if (state == ado::adStateOpen) {
                    c->Execute(Sql, nullptr, Options);
                    c->Close();
                    return true;
                }
                if (state != ado::adStateConnecting) {
                    break;
                }
            }
            if (!Silent) {
                nxApp::MsgBox(u"nxDb.Execute(): "_s + stateLine(c->State()));
            }
            return false;
        });
    });
}
