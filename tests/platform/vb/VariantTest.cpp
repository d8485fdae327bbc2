#include "platform/vb/Err.h"
#include "platform/vb/Variant.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using vb::Variant;

TEST(Variant, EmptyNullAndMissingAreThreeDifferentThings) {
    EXPECT_EQ(Variant().varType(), vb::VarType::Empty);
    EXPECT_EQ(Variant(vb::Null{}).varType(), vb::VarType::Null);
    EXPECT_EQ(Variant(vb::Missing{}).varType(), vb::VarType::Error);
    EXPECT_NE(Variant(), Variant(vb::Null{}));
    EXPECT_NE(Variant(vb::Null{}), Variant(QString()));
    // Empty converts to zero, Null converts to nothing.
    EXPECT_EQ(Variant().toDouble(), 0.0);
    EXPECT_FALSE(Variant(vb::Null{}).toDouble().has_value());
    EXPECT_EQ(Variant(vb::Null{}).toString(), QString());
}

TEST(Variant, TextFollowsItalianRegionalSettings) {
    EXPECT_EQ(Variant(1.5).toString(), u"1,5"_s);
    EXPECT_EQ(Variant(1.0 / 3.0).toString(), u"0,333333333333333"_s);
    EXPECT_EQ(Variant(1e15).toString(), u"1E+15"_s);
    EXPECT_EQ(Variant(0.00001).toString(), u"1E-05"_s);
    EXPECT_EQ(Variant(1.1f).toString(), u"1,1"_s);
    EXPECT_EQ(Variant(true).toString(), u"Vero"_s);
    EXPECT_EQ(Variant(false).toString(), u"Falso"_s);
    EXPECT_EQ(Variant(vb::makeDate(2024, 12, 31)).toString(), u"31/12/2024"_s);
    EXPECT_EQ(Variant(vb::makeDate(2024, 1, 2, 7, 5, 9)).toString(), u"02/01/2024 07:05:09"_s);
    EXPECT_EQ(Variant(vb::makeDate(1899, 12, 30, 13, 0, 0)).toString(), u"13:00:00"_s);
}

TEST(Variant, CurrencyTextIsExactAtTheExtremes) {
    EXPECT_EQ(Variant(vb::Currency{15000}).toString(), u"1,5"_s);
    EXPECT_EQ(Variant(vb::Currency{-1}).toString(), u"-0,0001"_s);
    EXPECT_EQ(Variant(vb::Currency{std::numeric_limits<std::int64_t>::min()}).toString(),
              u"-922337203685477,5808"_s);
    // A decimal goes to currency without passing through a double.
    const auto dec = vb::Decimal::parse(u"922337203685477.5807");
    ASSERT_TRUE(dec.has_value());
    EXPECT_EQ(Variant(*dec).toCurrency()->tenThousandths, std::numeric_limits<std::int64_t>::max());
}

TEST(Variant, WholeNumberConversionsRoundHalfToEvenAndRefuseOverflow) {
    EXPECT_EQ(Variant(2.5).toLong(), 2);
    EXPECT_EQ(Variant(3.5).toLong(), 4);
    EXPECT_EQ(Variant(-2.5).toLong(), -2);
    EXPECT_EQ(Variant(u"12,5"_s).toLong(), 12);
    EXPECT_FALSE(Variant(3e9).toLong().has_value());
    EXPECT_FALSE(Variant(std::int32_t{40000}).toInteger().has_value());
    EXPECT_FALSE(Variant(u"abc"_s).toLong().has_value());
    EXPECT_EQ(Variant(true).toLong(), -1);
}

TEST(Variant, BooleansAcceptTheItalianWords) {
    EXPECT_EQ(Variant(u"vero"_s).toBool(), true);
    EXPECT_EQ(Variant(u"FALSO"_s).toBool(), false);
    EXPECT_EQ(Variant(u"True"_s).toBool(), true);
    EXPECT_EQ(Variant(u"0"_s).toBool(), false);
    EXPECT_EQ(Variant(std::int16_t{-1}).toBool(), true);
    EXPECT_FALSE(Variant(u"forse"_s).toBool().has_value());
}

TEST(Variant, OleDatesCountTimeForwardEvenBeforeDayZero) {
    EXPECT_EQ(vb::dateFromOle(0.0), vb::makeDate(1899, 12, 30));
    EXPECT_EQ(vb::dateFromOle(-1.25), vb::makeDate(1899, 12, 29, 6, 0, 0));
    EXPECT_EQ(vb::dateFromOle(2.75), vb::makeDate(1900, 1, 1, 18, 0, 0));
    EXPECT_DOUBLE_EQ(vb::oleFromDate(vb::makeDate(1899, 12, 29, 6, 0, 0)), -1.25);
    // The range ends of the Date subtype, with milliseconds.
    const auto first = vb::makeDate(100, 1, 1);
    const auto last = vb::makeDate(9999, 12, 31, 23, 59, 59, 999);
    EXPECT_EQ(vb::dateFromOle(vb::oleFromDate(first)), first);
    EXPECT_EQ(vb::dateFromOle(vb::oleFromDate(last)), last);
    // Rounding that reaches midnight moves to the next day instead of making an invalid time.
    EXPECT_EQ(vb::dateFromOle(1.0 - 1e-10), vb::makeDate(1899, 12, 31));
}

TEST(Variant, DatesFromTextAndNumbers) {
    EXPECT_EQ(Variant(u"01/01/1753"_s).toDate(), vb::makeDate(1753, 1, 1));
    EXPECT_EQ(Variant(u"10:30:00"_s).toDate(), vb::makeDate(1899, 12, 30, 10, 30, 0));
    EXPECT_EQ(Variant(1.5).toDate(), vb::makeDate(1899, 12, 31, 12, 0, 0));
    EXPECT_FALSE(Variant(u"31/02/2024"_s).toDate().has_value());
    EXPECT_FALSE(Variant(1e9).toDate().has_value());
}

TEST(Variant, ByteArrayReadsAsUtf16) {
    const QByteArray bytes("A\0B\0C", 5);
    EXPECT_EQ(Variant(bytes).toString(), u"AB"_s);
    EXPECT_EQ(Variant(bytes).varType(), vb::VarType::ByteArray);
}

TEST(Err, RaiseFillsTheAmbientErrorAndThrows) {
    vb::Err().Clear();
    try {
        vb::Raise(vb::errors::kSubscriptOutOfRange, u"x"_s, QString());
        FAIL() << "Raise returned";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.record().Number, 9);
        EXPECT_EQ(vb::Err().Number, 9);
        EXPECT_EQ(vb::Err().Description, u"Indice non incluso nell'intervallo"_s);
        EXPECT_EQ(vb::Err().Source, u"x"_s);
    }
}
