#include "platform/ado/sqlserver/odbc/SchemaQueries.h"
#include "platform/ado/sqlserver/odbc/Types.h"

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

// The provider's own keywords: the words of T-SQL that are not among OLE DB's SQL-92 keywords.
constexpr const char16_t* kKeywords[] = {
    u"BREAK", u"BROWSE", u"BULK", u"CHECKPOINT", u"CLUSTERED", u"COMMITTED", u"COMPUTE",
    u"CONFIRM", u"CONTROLROW", u"DATABASE", u"DBCC", u"DISK", u"DISTRIBUTED", u"DUMMY",
    u"DUMP", u"ERRLVL", u"ERROREXIT", u"EXIT", u"FILE", u"FILLFACTOR", u"FLOPPY", u"HOLDLOCK",
    u"IDENTITY_INSERT", u"IDENTITYCOL", u"IF", u"KILL", u"LINENO", u"LOAD", u"MIRROREXIT",
    u"NONCLUSTERED", u"OFF", u"OFFSETS", u"ONCE", u"OVER", u"PERCENT", u"PERM", u"PERMANENT",
    u"PLAN", u"PRINT", u"PROC", u"PROCESSEXIT", u"RAISERROR", u"READ", u"READTEXT",
    u"RECONFIGURE", u"REPEATABLE", u"RETURN", u"ROWCOUNT", u"RULE", u"SAVE", u"SERIALIZABLE",
    u"SETUSER", u"SHUTDOWN", u"STATISTICS", u"TAPE", u"TEMP", u"TEXTSIZE", u"TOP", u"TRAN",
    u"TRIGGER", u"TRUNCATE", u"TSEQUEL", u"UNCOMMITTED", u"UPDATETEXT", u"USE", u"WAITFOR",
    u"WHILE", u"WRITETEXT",
};

struct Literal {
    const char16_t* name;
    const char16_t* value;
    const char16_t* invalidChars;
    const char16_t* invalidStartingChars;
    int literal; // DBLITERAL number
    int maxLength;
};

// Names are limited to sysname; quoting and separators are SQL Server's.
constexpr Literal kLiterals[] = {
    {u"Catalog_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 2, 128},
    {u"Catalog_Separator", u".", nullptr, nullptr, 3, 1},
    {u"Char_Literal", nullptr, nullptr, nullptr, 4, 8000},
    {u"Column_Alias", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 5, 128},
    {u"Column_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 6, 128},
    {u"Correlation_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 7, 128},
    {u"Cursor_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 8, 128},
    {u"Escape_Percent_Prefix", u"[", nullptr, nullptr, 9, 1},
    {u"Escape_Underscore_Prefix", u"[", nullptr, nullptr, 10, 1},
    {u"Index_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 11, 128},
    {u"Like_Percent", u"%", nullptr, nullptr, 12, 1},
    {u"Like_Underscore", u"_", nullptr, nullptr, 13, 1},
    {u"Procedure_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 14, 134},
    {u"Quote_Prefix", u"[", nullptr, nullptr, 15, 1},
    {u"Schema_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 16, 128},
    {u"Table_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 17, 128},
    {u"Text_Command", nullptr, nullptr, nullptr, 18, 0},
    {u"User_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 19, 128},
    {u"View_Name", nullptr, u"!\"%&'()*+,-./:;<=>?@\\^`{|}~", u"0123456789!\"$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 20, 128},
    {u"Quote_Suffix", u"]", nullptr, nullptr, 28, 1},
    {u"Escape_Percent_Suffix", u"]", nullptr, nullptr, 29, 1},
    {u"Escape_Underscore_Suffix", u"]", nullptr, nullptr, 30, 1},
};

vb::Variant textOrNull(const char16_t* text) {
    return text ? vb::Variant(QString::fromUtf16(text)) : vb::Variant(vb::Null{});
}

} // namespace

bool isStaticSchema(int schemaId) {
    return schemaId == schema::DBInfoKeywords || schemaId == schema::DBInfoLiterals;
}

StaticRowset staticRowset(int schemaId) {
    StaticRowset r;
    if (schemaId == schema::DBInfoKeywords) {
        r.columns = QStringList{u"Keyword"_s};
        r.types = {adtype::VarWChar};
        for (const char16_t* word : kKeywords) {
            r.rows.push_back({vb::Variant(QString::fromUtf16(word))});
        }
    } else if (schemaId == schema::DBInfoLiterals) {
        r.columns = QStringList{u"LiteralName"_s, u"LiteralValue"_s, u"InvalidChars"_s,
                                u"InvalidStartingChars"_s, u"Literal"_s, u"Maxlen"_s,
                                u"Supported"_s};
        r.types = {adtype::VarWChar, adtype::VarWChar, adtype::VarWChar, adtype::VarWChar,
                   adtype::Integer,  adtype::Integer,  adtype::Boolean};
        for (const Literal& l : kLiterals) {
            r.rows.push_back({vb::Variant(QString::fromUtf16(l.name)), textOrNull(l.value),
                              textOrNull(l.invalidChars), textOrNull(l.invalidStartingChars),
                              vb::Variant(std::int32_t(l.literal)),
                              vb::Variant(std::int32_t(l.maxLength)), vb::Variant(true)});
        }
    }
    return r;
}

} // namespace odbc
