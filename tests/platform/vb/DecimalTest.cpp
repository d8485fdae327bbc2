#include "platform/vb/Decimal.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using vb::Decimal;

TEST(Decimal, TextRoundTripsAcrossAllNinetySixBits) {
    for (const auto* text : {u"0", u"-1", u"0.05", u"-12.50", u"79228162514264337593543950335",
                             u"7.9228162514264337593543950335", u"18446744073709551616"}) {
        const auto parsed = Decimal::parse(QStringView(text));
        ASSERT_TRUE(parsed.has_value()) << QString::fromUtf16(text).toStdString();
        EXPECT_EQ(parsed->toString(), QString::fromUtf16(text));
    }
    const auto twoTo64 = Decimal::parse(u"18446744073709551616");
    EXPECT_EQ(twoTo64->hi, 1u);
    EXPECT_EQ(twoTo64->lo, 0u);
}

TEST(Decimal, RefusesWhatDoesNotFit) {
    EXPECT_FALSE(Decimal::parse(u"79228162514264337593543950336").has_value()); // 2^96
    EXPECT_FALSE(Decimal::parse(u"0.00000000000000000000000000001").has_value()); // scale 29
    EXPECT_FALSE(Decimal::parse(u"1e5").has_value());
    EXPECT_FALSE(Decimal::parse(u"").has_value());
    EXPECT_FALSE(Decimal::parse(u"-").has_value());
    EXPECT_FALSE(Decimal::parse(u"1.2.3").has_value());
}

TEST(Decimal, NegativeZeroPrintsWithoutSign) {
    Decimal d;
    d.negative = true;
    d.scale = 2;
    EXPECT_EQ(d.toString(), u"0.00"_s);
    EXPECT_DOUBLE_EQ(Decimal::parse(u"-2.5")->toDouble(), -2.5);
}
