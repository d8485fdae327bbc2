#pragma once

#include "platform/ado/Connection.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

// Questions about a live connection: does this database, table, column, key or default exist,
// what type is a column, what is the server's version. Nothing is cached; on the server every
// question runs on a connection of its own, so that it can be asked while the bound connection
// holds a server-side cursor open. Members answer with results and never throw.
class nxConn {
public:
    nxConn();

    const ado::ConnectionPtr& Connection() const noexcept { return m_connection; }
    // Null unbinds. Binding reads the back end from the provider and the "DBMS Version" property.
    void Connection(const ado::ConnectionPtr& connection) noexcept;
    // 0 Jet, 1 SQL Server, -1 unknown; 0 until first bound.
    std::int32_t DbType() const noexcept { return m_dbType; }

    // The first part of the version ("09.00.5000" gives 9); 0 when there is none.
    std::int32_t DBMSVersion() const noexcept;
    QString DBMSVersionFull() const;

    // The connection a question runs on: a new one on the server, the bound one elsewhere, null
    // when unbound. A clone the server refuses is null too.
    ado::ConnectionPtr CloneConnection() const noexcept;
    // The same for a question that has a trap of its own: a clone the server refuses raises its
    // ado::Error there, so that the question reports under its own label (or gives its empty
    // answer) instead of going on with no connection.
    ado::ConnectionPtr CloneConnectionOrThrow() const;
    // Closes `c` only when its state is closed: an open clone ends with its last reference.
    void CloseConnection(const ado::ConnectionPtr& c) const noexcept;

    bool DatabaseExists(const QString& Name) const noexcept;
    bool TableExists(const QString& Table) const noexcept;
    bool ColumnExists(const QString& Table, const QString& Column) const noexcept;
    // The ADO type of the column, 10 (adError) when it is missing. `Size` receives the
    // character length of a text column and stays untouched for the others.
    long ColumnType(const QString& Table, const QString& Column,
                    long* Size = nullptr) const noexcept;
    bool RelationExists(const QString& FkTable, const QString& PkTable, const QString& FkColumn,
                        const QString& PkColumn) const noexcept;
    bool ConstraintExists(const QString& Constraint) const noexcept;
    bool ProcedureExists(const QString& Procedure) const noexcept;
    // With `Rows` given and a match: one line per index column, INDEX_NAME, PRIMARY_KEY, UNIQUE,
    // COLLATION.
    bool IsIndexed(const QString& Table, const QString& Column,
                   std::vector<std::vector<vb::Variant>>* Rows = nullptr) const noexcept;
    bool IsInPrimaryKey(const QString& Column, const QString& Table) const noexcept;
    bool HasPrimaryKey(const QString& Table, QString* IndexName = nullptr) const noexcept;
    bool HasIdentityField(const QString& Table, QString* Column = nullptr) const noexcept;
    bool IsIdentityField(const QString& Table, const QString& Column) const noexcept;
    bool CheckNullable(const QString& Table, const QString& Column, bool Nullable) const noexcept;
    bool IsDbKeyword(const QString& Word) const noexcept;
    bool IsDbLiteral(const QString& Word) const noexcept;
    QString GetDefault(const QString& Table, const QString& Column) const noexcept;
    // Column names placed by their ordinal: element 0 stays empty, as in a one-based array.
    QStringList GetColumns(const QString& Table, long Mode = 0) const noexcept;
    QStringList GetPKColumns(const QString& Table) const noexcept;
    QString GetTableFromConstraintName(const QString& Constraint,
                                       const QString& Table = {}) const noexcept;
    QString GetTableFromDefVal(const QString& Default) const noexcept;
    // The name of the column's default constraint, empty when it has none.
    QString GetConstraintName(const QString& Table, const QString& Column) const noexcept;

private:
    // Whether the schema rowset, restricted and filtered, has rows; `onFound` reads them first.
    bool schemaHasRows(int schema, const std::vector<vb::Variant>& restrictions,
                       const QString& filter,
                       const std::function<void(ado::Recordset&)>& onFound = {}) const;
    QString firstValue(const QString& statement, const QString& filter = {}) const;
    QStringList placedByOrdinal(int schema, const QString& table, const QString& ordinal) const;

    bool m_init = false;
    ado::ConnectionPtr m_connection;
    std::int32_t m_dbType = 0;
    QStringList m_version;
};

namespace dbaccess {

// The application's shared nxConn, bound by every nxDb::DbOpen to the connection it opened.
nxConn& AppConn();

} // namespace dbaccess
