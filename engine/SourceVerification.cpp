#include "engine/SourceVerification.h"


#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxLog.h"

#include "platform/ado/Field.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace engine {

namespace {

using ado::SchemaEnum;

// The server stores no date before this one.
const QString kFirstServerDate = u"#01/01/1753#"_s;

vb::Variant field(ado::Recordset& rs, QStringView name) { return rs.Fields(name).Value(); }

QString text(ado::Recordset& rs, QStringView name) { return field(rs, name).toString(); }

long number(const vb::Variant& value) { return value.toLong().value_or(0); }

bool isEmpty(ado::Recordset& rs) { return rs.Bof() && rs.Eof(); }

// One schema rowset restricted on one position (0-based), the others left free.
ado::RecordsetPtr openSchema(ado::Connection& cn, SchemaEnum schema, std::size_t position,
                             const QString& value) {
    std::vector<vb::Variant> restrictions(position + 1);
    restrictions[position] = vb::Variant(value);
    return cn.OpenSchema(schema, restrictions);
}

void showWalkError(const QString& where) {
    const vb::ErrRecord e = frame::currentErrorRecord();
    nxApp::MsgBox(WalkErrorText(e.Number, e.Description, where), 48);
}

} // namespace

SourceVerification::SourceVerification(ado::ConnectionPtr connection,
                                       ado::adox::CatalogPtr catalog, nxLog& log,
                                       KeywordTest isKeyword)
    : m_connection(std::move(connection)), m_catalog(std::move(catalog)), m_log(log),
      m_isKeyword(std::move(isKeyword)) {}

bool SourceVerification::AnalyzeDatabase(bool& IdxOk) noexcept {
    bool result = true;
    try {
        ado::RecordsetPtr tables = m_connection->OpenSchema(
            SchemaEnum::adSchemaTables, {vb::Variant(), vb::Variant(), vb::Variant(), u"TABLE"_s});
        result = AnalyzeSystemTables(*tables) && result;
        result = AnalyzeTables(*tables, IdxOk, QString(), true) && result;
        result = AnalyzeTables(*tables, IdxOk, u"TABLE_NAME like 'D_%'"_s, false) && result;
        result = AnalyzeTables(*tables, IdxOk, u"TABLE_NAME like 'DIZ_%'"_s, false) && result;
        tables->Close();
    } catch (...) {
        // The walk ends here with what it found so far; the closing line is written all the same.
    }
    m_log.LogWrite(TableReport::separator());
    return result;
}

bool SourceVerification::AnalyzeSystemTables(ado::Recordset& Tables) noexcept {
    bool result = true;
    try {
        if (isEmpty(Tables)) {
            return true;
        }
        Tables.MoveFirst();
        while (!Tables.Eof()) {
            const QString name = catalogName(text(Tables, u"TABLE_NAME"));
            if (IsSystemTableName(name)) {
                TableReport report = TableReport::forSystemTable(name);
                bool tableOk = CheckDateFields(name, report);
                tableOk = CheckPrimaryKeyNulls(name, report) && tableOk;
                tableOk = CheckMemoIndexes(name, report) && tableOk;
                if (!tableOk) {
                    writeReport(report);
                }
                result = result && tableOk;
            }
            Tables.MoveNext();
        }
    } catch (...) {
        showWalkError(u"DbImport.AnalyzeSystemTables()"_s);
    }
    return result;
}

bool SourceVerification::AnalyzeTables(ado::Recordset& Tables, bool& IdxOk,
                                       const QString& Filter, bool OnlyNumbered) noexcept {
    bool result = true;
    ado::RecordsetPtr listed;
    try {
        Tables.setFilter(QString());
        if (isEmpty(Tables)) {
            return true;
        }
        Tables.MoveFirst();
        if (!Filter.isEmpty()) {
            Tables.setFilter(Filter);
            if (isEmpty(Tables)) {
                return true;
            }
        }
        listed = openKeyset(u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO"_s);
        for (; !Tables.Eof(); Tables.MoveNext()) {
            const QString name = catalogName(text(Tables, u"TABLE_NAME"));
            if (OnlyNumbered && !StartsWithDigit(name)) {
                continue;
            }
            bool tableOk = true;
            bool lengthOk = true;
            listed->setFilter(u"SYS_SERIALE='"_s + name + u"'"_s);
            if (!listed->Eof()) {
                tableOk = checkArchiveTable(name, text(*listed, u"ARCHIVIO"), lengthOk);
            } else if (name.left(4).toUpper() != u"DIZ_"_s) {
                for (const QString& line : NotListedLines(name)) {
                    m_log.LogWrite(line);
                }
            }
            result = result && tableOk;
            IdxOk = IdxOk && lengthOk;
        }
        listed->Close();
    } catch (...) {
        showWalkError(u"DbImport.AnalyzeTables()"_s);
    }
    return result;
}

// The report of one table that DB_ELENCO lists: the three hard checks, then the length.
bool SourceVerification::checkArchiveTable(const QString& name, const QString& archive,
                                           bool& lengthOk) {
    TableReport report = TableReport::forArchiveTable(name, archive);
    bool tableOk = CheckDateFields(name, report);
    tableOk = CheckPrimaryKeyNulls(name, report) && tableOk;
    tableOk = CheckMemoIndexes(name, report) && tableOk;
    lengthOk = CheckIndexLength(name, report);
    if (!tableOk || !lengthOk) {
        writeReport(report);
    }
    return tableOk;
}

bool SourceVerification::CheckIndexLength(const QString& Table, TableReport& Report) noexcept {
    bool result = true;
    try {
        ado::RecordsetPtr indexes = openSchema(*m_connection, SchemaEnum::adSchemaIndexes, 4, Table);
        ado::RecordsetPtr columns;
        IndexLength length;
        QString previous;
        auto test = [&](const QString& index) {
            if (length.tooLong()) {
                result = false;
                Report.addIndexTooLong(index);
            }
        };
        for (; !indexes->Eof(); indexes->MoveNext()) {
            const QString index = text(*indexes, u"INDEX_NAME");
            if (index != previous) {
                if (!previous.isEmpty()) {
                    test(previous);
                }
                columns = openSchema(*m_connection, SchemaEnum::adSchemaColumns, 2, Table);
                previous = index;
                length = IndexLength();
            }
            columns->setFilter(u"COLUMN_NAME='"_s + text(*indexes, u"COLUMN_NAME") + u"'"_s);
            length.add(number(field(*columns, u"DATA_TYPE")),
                       number(field(*columns, u"CHARACTER_OCTET_LENGTH")));
        }
        test(previous);
    } catch (...) {
        return false;
    }
    return result;
}

bool SourceVerification::CheckDateFields(const QString& Table, TableReport& Report) noexcept {
    bool result = true;
    try {
        ado::RecordsetPtr columns = openSchema(*m_connection, SchemaEnum::adSchemaColumns, 2, Table);
        columns->setFilter(u"DATA_TYPE=7"_s);
        const QString table = tableText(Table);
        for (; !columns->Eof(); columns->MoveNext()) {
            const QString column = text(*columns, u"COLUMN_NAME");
            if (column.left(4).toUpper() == u"SYS_"_s) {
                continue;
            }
            const QString f = fieldText(column);
            ado::RecordsetPtr count = openKeyset(u"select count(*) from "_s + table +
                                                 u" where (not "_s + f + u" is null) and ("_s + f +
                                                 u" < "_s + kFirstServerDate + u")"_s);
            const long found = number(count->Fields(0).Value());
            count->Close();
            if (found <= 0) {
                continue;
            }
            result = false;
            Report.addInvalidDateField(column);
            ado::RecordsetPtr rows = openKeyset(u"select * from "_s + table + u" where (not "_s +
                                                f + u" is null) and ("_s + f + u"< "_s +
                                                kFirstServerDate + u")"_s);
            for (; !rows->Eof(); rows->MoveNext()) {
                Report.addRecord(field(*rows, u"SYS_RECORD"), field(*rows, column));
            }
            rows->Close();
        }
    } catch (...) {
        return false;
    }
    return result;
}

bool SourceVerification::CheckPrimaryKeyNulls(const QString& Table, TableReport& Report) noexcept {
    bool result = true;
    try {
        ado::RecordsetPtr keys =
            openSchema(*m_connection, SchemaEnum::adSchemaPrimaryKeys, 2, Table);
        const QString table = tableText(Table);
        for (; !keys->Eof(); keys->MoveNext()) {
            const QString column = text(*keys, u"COLUMN_NAME");
            const QString f = fieldText(column);
            ado::RecordsetPtr count = openKeyset(u"select count(*) from "_s + table + u" where ("_s +
                                                 f + u" is null)"_s);
            const long found = number(count->Fields(0).Value());
            count->Close();
            if (found <= 0) {
                continue;
            }
            result = false;
            Report.addNullKeyField(column);
            // Only SYS_RECORD is selected: for any other key column the read of its value fails
            // and ends the check, so the report names the first bad field and no rows.
            ado::RecordsetPtr rows = openKeyset(u"select SYS_RECORD from "_s + table +
                                                u" where ("_s + f + u" is null)"_s);
            for (; !rows->Eof(); rows->MoveNext()) {
                const vb::Variant record = field(*rows, u"SYS_RECORD");
                Report.addRecord(record, field(*rows, column));
            }
            rows->Close();
        }
    } catch (...) {
        return false;
    }
    return result;
}

bool SourceVerification::CheckMemoIndexes(const QString& Table, TableReport& Report) noexcept {
    try {
        ado::RecordsetPtr indexes = openSchema(*m_connection, SchemaEnum::adSchemaIndexes, 4, Table);
        auto catalog = ado::adox::Catalog::create();
        catalog->setActiveConnection(m_connection);
        ado::adox::Columns& columns = catalog->Tables().Item(Table).Columns();
        bool found = false;
        for (; !indexes->Eof(); indexes->MoveNext()) {
            const QString column = text(*indexes, u"COLUMN_NAME");
            const QString index = text(*indexes, u"INDEX_NAME");
            if (columns.Item(column).Type() == ado::DataTypeEnum::adLongVarWChar) {
                found = true;
                Report.addMemoIndex(index, column);
            }
        }
        if (found) {
            Report.addMemoAdvice();
        }
        return !found;
    } catch (...) {
        return false;
    }
}

QString SourceVerification::catalogName(const QString& tableName) const {
    return m_catalog->Tables().Item(tableName).Name();
}

QString SourceVerification::tableText(const QString& table) const {
    return EncloseTableName(table);
}

QString SourceVerification::fieldText(const QString& field) const {
    return EncloseFieldName(field, m_isKeyword);
}

ado::RecordsetPtr SourceVerification::openKeyset(const QString& sql) const {
    auto rs = std::make_shared<ado::Recordset>();
    rs->setCursorLocation(ado::CursorLocationEnum::adUseServer);
    rs->Open(sql, m_connection, ado::CursorTypeEnum::adOpenKeyset,
             ado::LockTypeEnum::adLockReadOnly);
    return rs;
}

void SourceVerification::writeReport(const TableReport& report) {
    for (const QString& line : report.lines()) {
        m_log.LogWrite(line);
    }
}

} // namespace engine
