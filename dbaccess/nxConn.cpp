#include "dbaccess/nxConn.h"

#include "dbaccess/ErrorText.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"

#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

namespace {

using ado::SchemaEnum;
const vb::Variant kFree; // a restriction that leaves its column free

bool isEmpty(ado::Recordset& rs) {
    return rs.Bof() && rs.Eof();
}

} // namespace

nxConn::nxConn() : m_init(nxApp::IsInit()) {}

void nxConn::Connection(const ado::ConnectionPtr& connection) noexcept {
    m_connection = connection;
    m_version.clear();
    if (!connection) {
        m_dbType = -1;
        return;
    }
    IgnoreErrors([&] {
        m_dbType = nxApp::AdoConnectionDbType(connection->Provider());
        m_version = connection->Properties().Item(u"DBMS Version").Value().toString().split(u'.');
    });
}

std::int32_t nxConn::DBMSVersion() const noexcept {
    return m_version.isEmpty() ? 0 : m_version.front().toInt();
}

QString nxConn::DBMSVersionFull() const {
    return m_version.join(u'.');
}

ado::ConnectionPtr nxConn::CloneConnection() const noexcept {
    return IgnoreErrors(ado::ConnectionPtr(), [&] { return CloneConnectionOrThrow(); });
}

ado::ConnectionPtr nxConn::CloneConnectionOrThrow() const {
    if (!m_connection) {
        return {};
    }
    if (m_dbType != 1) {
        return m_connection;
    }
    // The string the bound connection reports still holds the login, since it was opened with
    // "Persist Security Info=true".
    auto c = ado::Connection::create();
    c->Open(m_connection->ConnectionString(), {}, {}, ado::adOptionUnspecified);
    return c;
}

void nxConn::CloseConnection(const ado::ConnectionPtr& c) const noexcept {
    // Only a connection already closed is closed here; an open clone ends with its last
    // reference, at the end of the question that took it.
    IgnoreErrors([&] {
        if (c && m_dbType == 1 && c->State() == ado::adStateClosed) {
            c->Close();
        }
    });
}

bool nxConn::schemaHasRows(int schema, const std::vector<vb::Variant>& restrictions,
                           const QString& filter,
                           const std::function<void(ado::Recordset&)>& onFound) const {
    ado::ConnectionPtr c = CloneConnectionOrThrow();
    if (!c) {
        return false;
    }
    ado::RecordsetPtr rs = c->OpenSchema(static_cast<SchemaEnum>(schema), restrictions);
    if (!filter.isEmpty()) {
        rs->setFilter(filter);
    }
    const bool found = !isEmpty(*rs);
    if (found && onFound) {
        onFound(*rs);
    }
    rs->Close();
    CloseConnection(c);
    return found;
}

bool nxConn::DatabaseExists(const QString& Name) const noexcept {
    if (!m_init || !m_connection) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        ado::Properties& p = m_connection->Properties();
        const QString user = p.Item(u"User ID").Value().toString();
        const QString login = user.isEmpty() ? u";Trusted_Connection=yes"_s
                                             : u";User ID="_s + user + u";Password="_s +
                                                   p.Item(u"Password").Value().toString();
        auto admin = ado::Connection::create();
        admin->Open(u"Provider="_s + m_connection->Provider() +
                    u";Initial Catalog=Master;Data Source="_s +
                    p.Item(u"Data Source").Value().toString() + login);
        ado::RecordsetPtr rs = admin->OpenSchema(SchemaEnum::adSchemaCatalogs);
        rs->setFilter(u"CATALOG_NAME like '"_s + Name + u'\'');
        const bool found = !isEmpty(*rs);
        rs->Close();
        rs->setActiveConnection(ado::ConnectionPtr());
        admin->Close();
        return found;
    });
}

bool nxConn::TableExists(const QString& Table) const noexcept {
    return IgnoreErrors(false, [&] { return schemaHasRows(20, {kFree, kFree, Table, kFree}, {}); });
}

bool nxConn::ColumnExists(const QString& Table, const QString& Column) const noexcept {
    if (!m_connection) {
        return false;
    }
    return Edge(u"nxConn.ColumnExists()", true, false, [&] {
        return schemaHasRows(4, {kFree, kFree, Table, Column}, {});
    });
}

long nxConn::ColumnType(const QString& Table, const QString& Column, long* Size) const noexcept {
    long type = 10; // adError
    // A column without a character length (numbers, dates) ends at the read of its length,
    // with the type already read and Size untouched.
    IgnoreErrors([&] {
        ado::ConnectionPtr c = CloneConnectionOrThrow();
        if (!c) {
            return;
        }
        ado::RecordsetPtr rs =
            c->OpenSchema(SchemaEnum::adSchemaColumns, {kFree, kFree, Table, Column});
        if (!isEmpty(*rs)) {
            type = dbaccess::longOf(rs->Fields(u"DATA_TYPE").Value());
            const long size = dbaccess::longOf(rs->Fields(u"CHARACTER_MAXIMUM_LENGTH").Value());
            if (Size) {
                *Size = size;
            }
        }
        rs->Close();
        CloseConnection(c);
    });
    return type;
}

bool nxConn::RelationExists(const QString& FkTable, const QString& PkTable, const QString& FkColumn,
                            const QString& PkColumn) const noexcept {
    return IgnoreErrors(false, [&] {
        return schemaHasRows(27, {kFree, kFree, PkTable, kFree, kFree, FkTable},
                             u"FK_COLUMN_NAME like '"_s + FkColumn +
                                 u"' and PK_COLUMN_NAME like '"_s + PkColumn + u'\'');
    });
}

bool nxConn::ConstraintExists(const QString& Constraint) const noexcept {
    return IgnoreErrors(false, [&] { return schemaHasRows(5, {kFree, kFree, Constraint}, {}); });
}

bool nxConn::ProcedureExists(const QString& Procedure) const noexcept {
    return IgnoreErrors(false, [&] {
        return schemaHasRows(16, {kFree, kFree, Procedure, kFree}, {});
    });
}

bool nxConn::IsIndexed(const QString& Table, const QString& Column,
                       std::vector<std::vector<vb::Variant>>* Rows) const noexcept {
    return IgnoreErrors(false, [&] {
        return schemaHasRows(
            12, {kFree, kFree, kFree, kFree, Table}, u"COLUMN_NAME like '"_s + Column + u'\'',
            [&](ado::Recordset& rs) {
                if (!Rows) {
                    return;
                }
                // GetRows gives [field][row]; callers read one line per index column.
                const auto byField =
                    rs.GetRows(ado::adGetRowsRest, {},
                               {u"INDEX_NAME"_s, u"PRIMARY_KEY"_s, u"UNIQUE"_s, u"COLLATION"_s});
                const std::size_t count = byField.empty() ? 0 : byField.front().size();
                if (count > 0) {
                    Rows->assign(count, std::vector<vb::Variant>(byField.size()));
                    for (std::size_t f = 0; f < byField.size(); ++f) {
                        for (std::size_t r = 0; r < count; ++r) {
                            (*Rows)[r][f] = byField[f][r];
                        }
                    }
                }
            });
    });
}

bool nxConn::IsInPrimaryKey(const QString& Column, const QString& Table) const noexcept {
    return IgnoreErrors(false, [&] {
        return schemaHasRows(28, {kFree, kFree, Table}, u"COLUMN_NAME like '"_s + Column + u'\'');
    });
}

bool nxConn::HasPrimaryKey(const QString& Table, QString* IndexName) const noexcept {
    return IgnoreErrors(false, [&] {
        return schemaHasRows(12, {kFree, kFree, kFree, kFree, Table}, u"PRIMARY_KEY<>0"_s,
                             [&](ado::Recordset& rs) {
                                 if (IndexName) {
                                     *IndexName = rs.Fields(u"INDEX_NAME").Value().toString();
                                 }
                             });
    });
}

bool nxConn::IsDbKeyword(const QString& Word) const noexcept {
    return IgnoreErrors(false,
                        [&] { return schemaHasRows(30, {}, u"Keyword like '"_s + Word + u'\''); });
}

bool nxConn::IsDbLiteral(const QString& Word) const noexcept {
    return IgnoreErrors(
        false, [&] { return schemaHasRows(31, {}, u"LiteralName like '"_s + Word + u'\''); });
}

QStringList nxConn::placedByOrdinal(int schema, const QString& table,
                                    const QString& ordinal) const {
    QStringList names;
    ado::ConnectionPtr c = CloneConnectionOrThrow();
    if (!c) {
        return names;
    }
    ado::RecordsetPtr rs = c->OpenSchema(static_cast<SchemaEnum>(schema), {kFree, kFree, table});
    for (; !rs->Eof(); rs->MoveNext()) {
        const std::int32_t at = dbaccess::longOf(rs->Fields(ordinal).Value());
        if (at < 0) {
            continue;
        }
        while (names.size() <= at) {
            names.append(QString());
        }
        names[at] = rs->Fields(u"COLUMN_NAME").Value().toString();
    }
    rs->Close();
    CloseConnection(c);
    return names;
}

QStringList nxConn::GetColumns(const QString& Table, long Mode) const noexcept {
    Q_UNUSED(Mode); // no caller gives it a meaning
    return IgnoreErrors(QStringList(),
                        [&] { return placedByOrdinal(4, Table, u"ORDINAL_POSITION"_s); });
}

QStringList nxConn::GetPKColumns(const QString& Table) const noexcept {
    return IgnoreErrors(QStringList(), [&] { return placedByOrdinal(28, Table, u"ORDINAL"_s); });
}

namespace dbaccess {

nxConn& AppConn() {
    static nxConn conn; // the one shared instance, as nxApp lends its toolkits
    return conn;
}

} // namespace dbaccess
