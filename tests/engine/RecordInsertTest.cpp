#include "engine/RecordInsert.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

namespace {

RecordField field(const QString& name, long index, long type, vb::Variant value,
                  long size = 0) {
    return {name, index, type, size, std::move(value)};
}

} // namespace

TEST(RecordInsert, NullFieldsAreLeftOut) {
    const QList<RecordField> fields = {
        field(u"SYS_RECORD"_s, 0, 3, vb::Variant::fromLong(7)),
        field(u"Data ora"_s, 1, 7, vb::Null{}),
        field(u"DESCRIZIONE"_s, 2, 202, u"l'anno"_s, 50),
        field(u"NOTE"_s, 3, 203, u"x"_s),
    };
    const InsertStatement s = ComposeInsert(u"D_ABC"_s, fields, {0, -1});
    EXPECT_EQ(s.text, u"insert into D_ABC (SYS_RECORD, DESCRIZIONE, NOTE) values (?, ?, ?)"_s);
    EXPECT_FALSE(s.identityWrap);
    ASSERT_EQ(s.parameters.size(), 3);
    EXPECT_EQ(s.parameters[1].name, u"DESCRIZIONE"_s);
    EXPECT_EQ(s.parameters[1].size, 50);
    EXPECT_EQ(s.parameters[1].value, vb::Variant(u"l'anno"_s));
    EXPECT_EQ(s.parameters[2].size, -1);
    EXPECT_EQ(s.parameters[0].size, 0);
}

TEST(RecordInsert, AllNullGivesAnEmptyInsert) {
    const InsertStatement s =
        ComposeInsert(u"123"_s, {field(u"A"_s, 0, 3, vb::Null{})}, {-1, -1});
    EXPECT_EQ(s.text, u"insert into [123] () values ()"_s);
    EXPECT_TRUE(s.parameters.isEmpty());
}

TEST(RecordInsert, IdentityWrap) {
    const QList<RecordField> fields = {field(u"ID"_s, 0, 3, vb::Variant::fromLong(12)),
                                       field(u"Order"_s, 1, 3, vb::Variant::fromLong(1))};
    const InsertStatement wrapped = ComposeInsert(u"D_ABC"_s, fields, {0, 0});
    EXPECT_TRUE(wrapped.identityWrap);
    EXPECT_EQ(wrapped.text,
              u"set identity_insert D_ABC on; insert into D_ABC (ID, [Order]) values (?, ?); set identity_insert D_ABC off"_s);
    // The server has no identity there (SYS_RECORD): copied plainly.
    EXPECT_FALSE(ComposeInsert(u"D_ABC"_s, fields, {0, -1}).identityWrap);
    // A null autoincrement value is left out, and so is the wrap.
    const QList<RecordField> nullId = {field(u"ID"_s, 0, 3, vb::Null{}),
                                       field(u"N"_s, 1, 3, vb::Variant::fromLong(1))};
    EXPECT_FALSE(ComposeInsert(u"D_ABC"_s, nullId, {0, 0}).identityWrap);
}

TEST(RecordInsert, ParameterValuesByKind) {
    // Booleans travel as 1 and 0; binary gets a parameter with no value.
    EXPECT_EQ(ParameterValue(11, true), vb::Variant(std::int32_t{1}));
    EXPECT_EQ(ParameterValue(11, false), vb::Variant(std::int32_t{0}));
    EXPECT_EQ(ParameterValue(11, vb::Variant(std::int16_t{-1})), vb::Variant(std::int32_t{1}));
    EXPECT_EQ(ParameterValue(11, vb::Variant(std::int16_t{1})), vb::Variant(std::int32_t{0}));
    EXPECT_FALSE(ParameterValue(128, QByteArray("ab")).has_value());
    EXPECT_FALSE(ParameterValue(72, u"{guid}"_s).has_value());
    const vb::Variant date(vb::makeDate(1999, 12, 31));
    EXPECT_EQ(ParameterValue(7, date), date);
    EXPECT_EQ(ParameterValue(6, vb::Variant(2.5)), vb::Variant(2.5));
    const struct {
        long type;
        int kind;
    } kinds[] = {{2, 1},  {3, 1},   {4, 1},   {5, 1},   {6, 1}, {17, 1}, {131, 1}, {130, 2},
                 {202, 2}, {203, 2}, {11, 3}, {7, 4}, {135, 4}, {128, 0}, {72, 0},  {20, 0}};
    for (const auto& k : kinds) {
        EXPECT_EQ(FieldKind(k.type), k.kind) << k.type;
    }
}

TEST(RecordInsert, BooleanFix) {
    EXPECT_EQ(BooleanFixStatement(u"D_ABC"_s, u"Attivo"_s),
              u"update D_ABC set Attivo=0 where Attivo is null"_s);
    EXPECT_EQ(BooleanFixStatement(u"123"_s, u"Da fare"_s),
              u"update [123] set [Da fare]=0 where [Da fare] is null"_s);
}
