#include "platform/ado/Error.h"
#include "platform/ado/Filter.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ado::FilterExpression;

namespace {

std::vector<ado::ColumnInfo> columns() {
    std::vector<ado::ColumnInfo> result(4);
    result[0].name = u"SYS_SERIALE"_s;
    result[0].type = ado::DataTypeEnum::adInteger;
    result[1].name = u"DESCRIZIONE"_s;
    result[1].type = ado::DataTypeEnum::adVarWChar;
    result[2].name = u"DATA_DOC"_s;
    result[2].type = ado::DataTypeEnum::adDate;
    result[3].name = u"Nome Campo"_s;
    result[3].type = ado::DataTypeEnum::adVarWChar;
    return result;
}

struct Row {
    vb::Variant serial;
    vb::Variant text;
    vb::Variant date = vb::Null{};
    vb::Variant spaced = vb::Null{};
};

bool matches(const QString& filter, const Row& row) {
    const auto expression = FilterExpression::parse(filter, columns());
    return expression.matches([&](int column) {
        switch (column) {
        case 0:
            return row.serial;
        case 1:
            return row.text;
        case 2:
            return row.date;
        default:
            return row.spaced;
        }
    });
}

bool refused(const QString& filter) {
    try {
        (void)FilterExpression::parse(filter, columns());
    } catch (const ado::Error& e) {
        return e.is(ado::HResult::adErrInvalidArgument) && e.source() == u"ADODB.Recordset"_s;
    }
    return false;
}

} // namespace

TEST(Filter, ComparisonsOnNumbersAndText) {
    const Row row{std::int32_t{42}, u"Fatture 2004"_s};
    EXPECT_TRUE(matches(u"SYS_SERIALE = 42"_s, row));
    EXPECT_FALSE(matches(u"SYS_SERIALE = 41"_s, row));
    EXPECT_TRUE(matches(u"SYS_SERIALE <> 41"_s, row));
    EXPECT_FALSE(matches(u"SYS_SERIALE <> 42"_s, row));
    EXPECT_TRUE(matches(u"SYS_SERIALE < 43"_s, row));
    EXPECT_FALSE(matches(u"SYS_SERIALE < 42"_s, row));
    EXPECT_TRUE(matches(u"SYS_SERIALE > 41.5"_s, row));
    EXPECT_TRUE(matches(u"SYS_SERIALE >= 42 and SYS_SERIALE <= 42"_s, row));
    // Text compares without regard to case; the quoted value may hold an apostrophe.
    EXPECT_TRUE(matches(u"DESCRIZIONE = 'FATTURE 2004'"_s, row));
    EXPECT_TRUE(matches(u"DESCRIZIONE = 'l''archivio'"_s, Row{std::int32_t{1}, u"L'Archivio"_s}));
    EXPECT_TRUE(matches(u"DESCRIZIONE > 'E'"_s, row));
    EXPECT_FALSE(matches(u"DESCRIZIONE < 'E'"_s, row));
}

TEST(Filter, FieldNamesWithoutRegardToCaseAndInBrackets) {
    const Row row{std::int32_t{7}, u"x"_s, vb::Null{}, u"abc"_s};
    EXPECT_TRUE(matches(u"sys_seriale=7"_s, row));
    EXPECT_TRUE(matches(u"[Sys_Seriale] = 7"_s, row));
    EXPECT_TRUE(matches(u"[nome campo] = 'ABC'"_s, row));
    EXPECT_TRUE(refused(u"NOME_CAMPO = 'abc'"_s)); // unknown field
}

TEST(Filter, LikeWithTrailingOrSurroundingWildcards) {
    const Row row{std::int32_t{1}, u"Protocollo_Generale"_s};
    EXPECT_TRUE(matches(u"DESCRIZIONE like 'proto%'"_s, row));
    EXPECT_TRUE(matches(u"DESCRIZIONE LIKE 'proto*'"_s, row));
    EXPECT_FALSE(matches(u"DESCRIZIONE like 'generale%'"_s, row));
    EXPECT_TRUE(matches(u"DESCRIZIONE like '%GENER%'"_s, row));
    EXPECT_FALSE(matches(u"DESCRIZIONE like '%xyz%'"_s, row));
    EXPECT_TRUE(matches(u"DESCRIZIONE like 'protocollo_generale'"_s, row)); // no wildcard: equality
    EXPECT_FALSE(matches(u"DESCRIZIONE like 'protocolloXgenerale'"_s, row)); // "_" is no wildcard
    EXPECT_TRUE(matches(u"DESCRIZIONE like '%'"_s, row));
    EXPECT_FALSE(matches(u"DESCRIZIONE like '%'"_s, Row{std::int32_t{1}, vb::Null{}}));
    EXPECT_TRUE(refused(u"DESCRIZIONE like '%generale'"_s)); // a leading wildcard alone
    EXPECT_TRUE(refused(u"DESCRIZIONE like 'pro%gen%'"_s));  // a wildcard in the middle
    EXPECT_TRUE(refused(u"DESCRIZIONE like 5"_s));
}

TEST(Filter, AndOrAndParentheses) {
    const Row row{std::int32_t{5}, u"b"_s};
    EXPECT_TRUE(matches(u"SYS_SERIALE = 5 AND DESCRIZIONE = 'b'"_s, row));
    EXPECT_FALSE(matches(u"SYS_SERIALE = 5 and DESCRIZIONE = 'c'"_s, row));
    EXPECT_TRUE(matches(u"SYS_SERIALE = 4 or DESCRIZIONE = 'b'"_s, row));
    EXPECT_TRUE(matches(u"(SYS_SERIALE = 4 OR SYS_SERIALE = 5) AND (DESCRIZIONE = 'b')"_s, row));
    EXPECT_FALSE(matches(u"(SYS_SERIALE = 4 OR SYS_SERIALE = 6) AND DESCRIZIONE = 'b'"_s, row));
    // "and" binds tighter than "or"
    EXPECT_TRUE(matches(u"SYS_SERIALE = 4 and DESCRIZIONE = 'x' or SYS_SERIALE = 5"_s, row));
}

TEST(Filter, NullsAndDates) {
    const Row withNull{std::int32_t{1}, vb::Null{}};
    EXPECT_TRUE(matches(u"DESCRIZIONE = NULL"_s, withNull));
    EXPECT_FALSE(matches(u"DESCRIZIONE <> null"_s, withNull));
    EXPECT_FALSE(matches(u"DESCRIZIONE = 'x'"_s, withNull));
    EXPECT_FALSE(matches(u"DESCRIZIONE <> 'x'"_s, withNull)); // a null never compares
    EXPECT_TRUE(matches(u"DESCRIZIONE <> NULL"_s, Row{std::int32_t{1}, u"x"_s}));

    Row dated{std::int32_t{1}, u"x"_s, vb::makeDate(1753, 1, 1)};
    EXPECT_TRUE(matches(u"DATA_DOC = #01/01/1753#"_s, dated));
    EXPECT_FALSE(matches(u"DATA_DOC < #01/01/1753#"_s, dated));
    EXPECT_TRUE(matches(u"DATA_DOC < #01/02/1753#"_s, dated)); // month first, as ADO reads it
    EXPECT_FALSE(matches(u"DATA_DOC > #01/01/1753#"_s, dated));
}

TEST(Filter, TextOutsideTheGrammarIsRefused) {
    for (const QString& text :
         {u"SYS_SERIALE"_s, u"SYS_SERIALE = "_s, u"SYS_SERIALE == 5"_s, u"DESCRIZIONE = 'open"_s,
          u"(SYS_SERIALE = 5"_s, u"SYS_SERIALE = 5 AND"_s, u"SYS_SERIALE = 5 extra"_s,
          u"DATA_DOC = #notadate#"_s, u"SYS_SERIALE = abc"_s, u"[SYS_SERIALE = 5"_s}) {
        EXPECT_TRUE(refused(text)) << text.toStdString();
    }
    EXPECT_TRUE(FilterExpression::parse(u"   "_s, columns()).isEmpty());
}
