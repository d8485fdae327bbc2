#include "frame/nxMisc.h"
#include "frame/nxStringBuilder.h"

#include "tests/frame/FrameFixture.h"

#include <QDateTime>
#include <QRegularExpression>

#include <map>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class MiscTest : public FrameTest {};

TEST_F(MiscTest, TokenGivesTheDefaultForMissingAndEmptyPieces) {
    const nxMisc& m = nxApp::Misc();
    EXPECT_EQ(m.Token(u"a//b"_s, 2, u"x"_s, u"/"_s), u"x"_s);
    EXPECT_EQ(m.Token(u"a//b"_s, 3, u"x"_s, u"/"_s), u"b"_s);
    EXPECT_EQ(m.Token(u"a"_s, 2, u"x"_s, u"/"_s), u"x"_s);
    EXPECT_EQ(m.Token(u"a"_s, 0, u"x"_s, u"/"_s), u"x"_s);
    EXPECT_EQ(m.Token(QString(), 1, u"x"_s, u"/"_s), u"x"_s);
    EXPECT_EQ(m.Token(u"uno||due"_s, 2, u"x"_s, u"||"_s), u"due"_s);
    EXPECT_EQ(m.Token(u"a b"_s, 1, u"x"_s, QString()), u"a b"_s);
}

TEST_F(MiscTest, VariantKindCoversEveryType) {
    const nxMisc& m = nxApp::Misc();
    auto array = std::make_shared<const std::vector<vb::Variant>>();
    const std::map<vb::VarType, std::pair<vb::Variant, int>> kinds = {
        {vb::VarType::Empty, {vb::Variant(), 1}},
        {vb::VarType::Null, {vb::Null{}, 2}},
        {vb::VarType::Integer, {std::int16_t(1), 4}},
        {vb::VarType::Long, {vb::Variant::fromLong(1), 4}},
        {vb::VarType::Single, {1.0f, 4}},
        {vb::VarType::Double, {1.0, 4}},
        {vb::VarType::Currency, {vb::Currency{10000}, 4}},
        {vb::VarType::Date, {vb::makeDate(2024, 1, 2), 5}},
        {vb::VarType::String, {u"s"_s, 3}},
        {vb::VarType::Object, {vb::Object{}, 0}},
        {vb::VarType::Error, {vb::Missing{}, 0}},
        {vb::VarType::Boolean, {true, 6}},
        {vb::VarType::Decimal, {vb::Decimal(), 4}},
        {vb::VarType::Byte, {std::uint8_t(1), 0}},
        {vb::VarType::Array, {vb::VariantArray(array), 0}}, // a real array is not the bare flag
        {vb::VarType::ByteArray, {QByteArray("x"), 0}},
    };
    for (const auto& [type, c] : kinds) {
        SCOPED_TRACE(static_cast<int>(type));
        ASSERT_EQ(c.first.varType(), type);
        EXPECT_EQ(m.VariantKind(c.first), c.second);
    }
    EXPECT_EQ(kinds.size(), 16u); // every subtype of vb::VarType
}

TEST_F(MiscTest, VariantIsDiff) {
    const nxMisc& m = nxApp::Misc();
    EXPECT_FALSE(m.VariantIsDiff(vb::Null{}, vb::Null{}, false));
    EXPECT_TRUE(m.VariantIsDiff(vb::Null{}, u""_s, false));
    EXPECT_TRUE(m.VariantIsDiff(vb::Variant::fromLong(1), std::int16_t(1), false));
    EXPECT_FALSE(m.VariantIsDiff(vb::Variant::fromLong(1), std::int16_t(1), true));
    EXPECT_FALSE(m.VariantIsDiff(vb::Variant::fromLong(1), 1.0, true)); // both print "1"
    EXPECT_TRUE(m.VariantIsDiff(vb::Variant::fromLong(1), 1.5, true));
    EXPECT_TRUE(m.VariantIsDiff(u"a"_s, u"A"_s, false));
    EXPECT_FALSE(m.VariantIsDiff(u"a"_s, u"a"_s, false));
}

TEST_F(MiscTest, Searches) {
    const nxMisc& m = nxApp::Misc();
    EXPECT_EQ(m.InStrFirst(1, u"abc"_s, QString()), 0);
    EXPECT_EQ(m.InStrFirst(1, QString(), u"a"_s), 0);
    EXPECT_EQ(m.InStrFirst(1, u"abc"_s, u"xyz"_s), -1);
    EXPECT_EQ(m.InStrFirst(0, u"a,b;c"_s, u";,"_s), 2);
    EXPECT_EQ(m.InStrFirst(3, u"a,b;c"_s, u";,"_s), 4);
    EXPECT_EQ(m.InStrFirst(1, u"abC"_s, u"c"_s, nxMisc::kTextCompare), 3);
    EXPECT_EQ(m.InStrRev(0, u"a.b.c"_s, u"."_s), 4);
    EXPECT_EQ(m.InStrRev(3, u"a.b.c"_s, u"."_s), 2);
    EXPECT_EQ(m.InStrRev(1, u"a.b.c"_s, u"."_s), 0);
    EXPECT_EQ(m.InStrX(1, u"a,b,c,d"_s, u","_s, 3), 6);
    EXPECT_EQ(m.InStrX(0, u"a,b,c,d"_s, u","_s, 0), 2);
    EXPECT_EQ(m.InStrX(1, u"a,b"_s, u","_s, 2), 0);
    EXPECT_EQ(m.InStrX(1, u"xAxa"_s, u"a"_s, 2, nxMisc::kTextCompare), 4);
}

TEST_F(MiscTest, CharacterTests) {
    const nxMisc& m = nxApp::Misc();
    EXPECT_TRUE(m.IsAlpha(u"é"_s, 1));
    EXPECT_TRUE(m.IsAlpha(u"a_"_s, 2));
    EXPECT_FALSE(m.IsAlpha(u"1"_s, 1));
    EXPECT_TRUE(m.IsAlpha(u"#"_s, 1, u"#$"_s));
    EXPECT_FALSE(m.IsAlpha(u"a"_s, 2));
    EXPECT_FALSE(m.IsAlpha(u"a"_s, 0));
    EXPECT_TRUE(m.IsNumber(u"a7"_s, 2));
    EXPECT_FALSE(m.IsNumber(u"٣"_s, 1)); // ASCII digits only
    EXPECT_TRUE(m.IsNumber(u"-"_s, 1, u"-+"_s));
}

TEST_F(MiscTest, TextShaping) {
    const nxMisc& m = nxApp::Misc();
    EXPECT_EQ(m.Hex(255, 2), u"FF"_s);
    EXPECT_EQ(m.Hex(1, 2), u"01"_s);
    EXPECT_EQ(m.Hex(-1), u"FFFFFFFF"_s);
    EXPECT_EQ(m.FillWith(u"7"_s, 3, u"0x"_s), u"007"_s);
    EXPECT_EQ(m.FillWith(u"1234"_s, 3, u"0"_s), u"1234"_s);
    EXPECT_EQ(m.LeadRemove(u"[[a]]"_s, u"[]"_s), u"a"_s);
    EXPECT_EQ(m.LeadRemove(u"'x''"_s, u"''"_s), u"x"_s);
    EXPECT_EQ(m.LeadRemove(u"[a]"_s, QString()), u"[a]"_s);
    EXPECT_EQ(m.LeadAppend(u"a]"_s, u"[]"_s), u"[a]"_s);
    EXPECT_EQ(m.LeadAppend(QString(), u"[]"_s), u"[]"_s);
    EXPECT_EQ(m.RemoveChars(u"a-b_c"_s, u"-_"_s), u"abc"_s);
    EXPECT_EQ(m.RemoveChars(u"a-b_c"_s, u"-_"_s, true), u"a b c"_s);
    EXPECT_EQ(m.RemoveChars(u"a b-c"_s, u" -"_s, true), u"abc"_s); // a blank in the set: removed
    EXPECT_EQ(m.ApiciDoppi(u"l'arte d'oggi"_s), u"l''arte d''oggi"_s);
    EXPECT_EQ(m.AnsiToVb(u"abc"_s + QChar(0) + u"def"_s), u"abc"_s);
    QString s = u"abcdef"_s;
    m.StrDel(s, 2, 2);
    EXPECT_EQ(s, u"adef"_s);
    m.StrDel(s, 3, 99);
    EXPECT_EQ(s, u"ad"_s);
    m.StrDel(s, 5, 1);
    EXPECT_EQ(s, u"ad"_s);
}

TEST_F(MiscTest, MinWithAFloorSkipsANotFound) {
    const nxMisc& m = nxApp::Misc();
    const auto L = [](long v) { return vb::Variant::fromLong(v); };
    EXPECT_EQ(m.Min(L(3), L(5)), L(3));
    EXPECT_EQ(m.Min(L(0), L(5), L(1)), L(5));
    EXPECT_EQ(m.Min(L(7), L(0), L(1)), L(7));
    EXPECT_EQ(m.Min(L(0), L(0), L(1)), L(0));
    EXPECT_EQ(m.Min(u"b"_s, u"a"_s), vb::Variant(u"a"_s));
    EXPECT_EQ(m.Min(L(9), u"a"_s), L(9)); // a number stands below any string
    vb::Variant v = L(12);
    EXPECT_FALSE(m.MinMax(v, L(10), L(1)));
    EXPECT_EQ(v, L(12));
    EXPECT_FALSE(m.MinMax(v, L(10), L(1), true));
    EXPECT_EQ(v, L(10));
    v = L(-3);
    EXPECT_FALSE(m.MinMax(v, L(1), L(10), true));
    EXPECT_EQ(v, L(1));
    EXPECT_TRUE(m.MinMax(v, L(1), L(10), true));
    vb::Variant a = L(1);
    vb::Variant b = u"b"_s;
    m.Swap(a, b);
    EXPECT_EQ(a, vb::Variant(u"b"_s));
}

// A collection as ADOX has them: Item throws for a name it lacks.
struct Collection {
    QStringList names;
    int refreshes = 0;
    void Refresh() { ++refreshes; }
    const QString& Item(const QString& name) const {
        for (const QString& n : names) {
            if (n.compare(name, Qt::CaseInsensitive) == 0) {
                return n;
            }
        }
        throw std::out_of_range("no item");
    }
};

TEST_F(MiscTest, ObjectExistFetchesTheItem) {
    const nxMisc& m = nxApp::Misc();
    Collection tables{{u"DB_ELENCO"_s}};
    EXPECT_TRUE(m.ObjectExist(tables, u"db_elenco"_s));
    EXPECT_FALSE(m.ObjectExist(tables, u"D_1"_s, true));
    EXPECT_EQ(tables.refreshes, 1);
    EXPECT_EQ(nxApp::LastError().Number(), 0); // a missing item is an answer, not a failure
}

TEST_F(MiscTest, ArrayIsEmpty) {
    const nxMisc& m = nxApp::Misc();
    auto none = std::make_shared<const std::vector<vb::Variant>>();
    auto flat = std::make_shared<const std::vector<vb::Variant>>(std::vector<vb::Variant>{1.0});
    auto nested = std::make_shared<const std::vector<vb::Variant>>(
        std::vector<vb::Variant>{vb::Variant(vb::VariantArray(flat))});
    EXPECT_TRUE(m.ArrayIsEmpty(vb::Variant(vb::VariantArray(none))));
    EXPECT_FALSE(m.ArrayIsEmpty(vb::Variant(vb::VariantArray(flat))));
    EXPECT_TRUE(m.ArrayIsEmpty(vb::Variant(vb::VariantArray(flat)), 2));
    EXPECT_FALSE(m.ArrayIsEmpty(vb::Variant(vb::VariantArray(nested)), 2));
    EXPECT_TRUE(m.ArrayIsEmpty(vb::Variant(u"x"_s)));
    EXPECT_TRUE(m.ArrayIsEmpty(QStringList()));
}

TEST_F(MiscTest, NewIdIsDateTimeAndRandomDigits) {
    const nxMisc& m = nxApp::Misc();
    const QDateTime before = QDateTime::currentDateTime();
    const QString id = m.NewID(16);
    const QDateTime after = QDateTime::currentDateTime();
    ASSERT_EQ(id.size(), 16);
    EXPECT_TRUE(id.left(12) == before.toString(u"yyddMMHHmmss"_s) ||
                id.left(12) == after.toString(u"yyddMMHHmmss"_s))
        << id.toStdString();
    EXPECT_TRUE(QRegularExpression(u"^[0-9A-F]{4}$"_s).match(id.mid(12)).hasMatch());
    const QString eight = m.NewID(8);
    EXPECT_TRUE(eight.left(4) == before.toString(u"mmss"_s) ||
                eight.left(4) == QDateTime::currentDateTime().toString(u"mmss"_s))
        << eight.toStdString();
    EXPECT_EQ(m.NewID(30).size(), 24);
    EXPECT_TRUE(QRegularExpression(u"^\\d{12}[0-9A-F]{12}$"_s).match(m.NewID(24)).hasMatch());
    EXPECT_EQ(m.NewID(0), QString());
}

TEST_F(MiscTest, StringBuilderDoublesOncePerAppend) {
    nxStringBuilder sb;
    EXPECT_EQ(sb.ToString(), QString());
    EXPECT_EQ(sb.Capacity(), 4096);
    EXPECT_MEMBER_OK(sb.Append(u"select "_s));
    sb.AppendLine(u"€uro"_s);
    EXPECT_EQ(sb.ToString(), u"select €uro\r\n"_s);
    EXPECT_MEMBER_OK(sb.Append(QString(5000, u'x')));
    EXPECT_EQ(sb.Capacity(), 8192);
    EXPECT_FALSE(sb.Append(QString(20000, u'y')));
    EXPECT_EQ(nxApp::LastError().Number(), 9);
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(sb.ToString().size(), 13 + 5000);
    EXPECT_MEMBER_OK(sb.Append(u"ā"_s)); // not in the code page
    EXPECT_TRUE(sb.ToString().endsWith(u"x?"_s));
    sb.Reset();
    EXPECT_EQ(sb.Capacity(), 4096);
    EXPECT_MEMBER_OK(sb.Append(u"a"_s + QChar(0) + u"b"_s));
    EXPECT_EQ(sb.ToString(), u"a"_s);
    EXPECT_EQ(sb.Length(), 3);
}

} // namespace
