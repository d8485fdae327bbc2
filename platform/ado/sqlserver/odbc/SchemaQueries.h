#pragma once

#include "platform/ado/sqlserver/odbc/Values.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace odbc {

// ADO's SchemaEnum numbers of the rowsets this provider builds.
namespace schema {
inline constexpr int Catalogs = 1;
inline constexpr int Columns = 4;
inline constexpr int CheckConstraints = 5;
inline constexpr int Indexes = 12;
inline constexpr int Procedures = 16;
inline constexpr int Tables = 20;
inline constexpr int ForeignKeys = 27;
inline constexpr int PrimaryKeys = 28;
inline constexpr int DBInfoKeywords = 30;
inline constexpr int DBInfoLiterals = 31;
} // namespace schema

// One schema rowset as a query on the server's catalog views, with OLE DB's column names and
// the values SQL Server's OLE DB provider reports; restrictions travel as parameters.
struct SchemaQuery {
    QString text;
    std::vector<ParameterValue> parameters;
};

// The query for a server-side rowset. Empty, Null and missing restrictions (and empty text)
// restrict nothing. Throws Failure: 0x80040E53 for a rowset this provider does not build,
// 0x800A0BB9 for more restrictions than the rowset has.
SchemaQuery schemaQuery(int schemaId, const std::vector<vb::Variant>& restrictions);

// The rowsets built on the client: the provider's keywords (30) and literals (31).
struct StaticRowset {
    QStringList columns;
    std::vector<int> types;
    std::vector<std::vector<vb::Variant>> rows;
};
bool isStaticSchema(int schemaId);
StaticRowset staticRowset(int schemaId);

// "DBMS Version" as the OLE DB provider gives it, ##.##.####, from the server's
// ProductVersion ("15.0.2000.5" -> "15.00.2000"); empty when the text is not a version.
QString dbmsVersion(const QString& productVersion);
// The statement that asks the server for its ProductVersion.
QString productVersionQuery();

} // namespace odbc
