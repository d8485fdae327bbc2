#include "platform/ado/sqlserver/odbc/Execution.h"
#include "platform/ado/sqlserver/odbc/Types.h"
#include "tests/platform/sqlserver/RecordingOdbc.h"
#include "tests/support/Printers.h"

#include <QUuid>

#include <gtest/gtest.h>

#include <sqlucode.h>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace odbc;

namespace {

QByteArray utf16(const QString& s) {
    return QByteArray(reinterpret_cast<const char*>(s.utf16()), s.size() * 2);
}

template <class T> QByteArray raw(const T& v) {
    return QByteArray(reinterpret_cast<const char*>(&v), sizeof v);
}

class ParametersTest : public ::testing::Test {
protected:
    void SetUp() override { connection.open(u"x"_s, 0); }
    // Binds one parameter and returns how it went to the driver and its bytes.
    std::pair<Binding, QByteArray> send(ParameterValue p) {
        api.log.clear();
        runBatch(connection, u"insert into T values (?)"_s, {std::move(p)});
        const QStringList bind = api.log.filter(u"SQLBindParameter"_s);
        EXPECT_EQ(bind.size(), 1);
        const QStringList f = bind.value(0).split(u' ');
        Binding b{static_cast<SQLSMALLINT>(f.value(2).mid(2).toInt()),
                  static_cast<SQLSMALLINT>(f.value(3).mid(4).toInt()),
                  f.value(4).mid(5).toULongLong(),
                  static_cast<SQLSMALLINT>(f.value(5).mid(7).toInt())};
        return {b, api.lastParameterBytes.at(0)};
    }
    RecordingOdbc api;
    Connection connection{api};
};

} // namespace

TEST_F(ParametersTest, NumbersBooleansAndMoneyAreExact) {
    EXPECT_EQ(send({2, 0, 0, 0, vb::Variant(std::int32_t(-32768))}),
              std::pair(Binding{SQL_C_SSHORT, SQL_SMALLINT, 5, 0}, raw<SQLSMALLINT>(-32768)));
    EXPECT_EQ(send({3, 0, 0, 0, vb::Variant(u"123456"_s)}),
              std::pair(Binding{SQL_C_SLONG, SQL_INTEGER, 10, 0}, raw<SQLINTEGER>(123456)));
    EXPECT_EQ(send({4, 0, 0, 0, vb::Variant(1.5)}),
              std::pair(Binding{SQL_C_FLOAT, SQL_REAL, 7, 0}, raw<float>(1.5f)));
    EXPECT_EQ(send({5, 0, 0, 0, vb::Variant(0.1)}),
              std::pair(Binding{SQL_C_DOUBLE, SQL_DOUBLE, 15, 0}, raw<double>(0.1)));
    EXPECT_EQ(send({17, 0, 0, 0, vb::Variant(std::int16_t(200))}),
              std::pair(Binding{SQL_C_UTINYINT, SQL_TINYINT, 3, 0}, raw<SQLCHAR>(200)));
    // ADO's True is -1; the bit is 1.
    EXPECT_EQ(send({11, 0, 0, 0, vb::Variant(std::int16_t(-1))}),
              std::pair(Binding{SQL_C_BIT, SQL_BIT, 1, 0}, raw<SQLCHAR>(1)));
    // Money never passes through a double.
    EXPECT_EQ(send({6, 0, 0, 0, vb::Variant(vb::Currency{922337203685477580})}),
              std::pair(Binding{SQL_C_WCHAR, SQL_DECIMAL, 19, 4},
                        utf16(u"92233720368547.7580"_s)));
    EXPECT_EQ(send({6, 0, 0, 0, vb::Variant(vb::Currency{-5})}).second, utf16(u"-0.0005"_s));
    EXPECT_EQ(send({131, 0, 12, 3, vb::Variant(u"1234,5"_s)}),
              std::pair(Binding{SQL_C_WCHAR, SQL_NUMERIC, 12, 3}, utf16(u"1234.5"_s)));
    EXPECT_EQ(send({20, 0, 0, 0, vb::Variant(*vb::Decimal::parse(u"-9000000000"))}),
              std::pair(Binding{SQL_C_WCHAR, SQL_BIGINT, 19, 0}, utf16(u"-9000000000"_s)));
}

TEST_F(ParametersTest, DatesKeepTheirTimeAndGuidsTheirBytes) {
    SQL_TIMESTAMP_STRUCT t{};
    t.year = 2024;
    t.month = 2;
    t.day = 29;
    t.hour = 13;
    t.minute = 45;
    t.second = 59;
    t.fraction = 997000000;
    for (int type : {7, 135}) {
        EXPECT_EQ(send({type, 0, 0, 0, vb::Variant(vb::makeDate(2024, 2, 29, 13, 45, 59, 997))}),
                  std::pair(Binding{SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, 23, 3}, raw(t)));
    }
    const auto [b, bytes] = send({72, 0, 0, 0, vb::Variant(u"{6F9619FF-8B86-D011-B42D-00C04FC964FF}"_s)});
    EXPECT_EQ(b, (Binding{SQL_C_GUID, SQL_GUID, 16, 0}));
    SQLGUID g{};
    ASSERT_EQ(bytes.size(), qsizetype(sizeof g));
    std::memcpy(&g, bytes.constData(), sizeof g);
    EXPECT_EQ(g.Data1, 0x6F9619FFu);
    EXPECT_EQ(g.Data2, 0x8B86);
    EXPECT_EQ(g.Data4[7], 0xFF);
}

TEST_F(ParametersTest, TextAndBinaryLengthsChooseTheDeclaredType) {
    const QString at4000(4000, u'è');
    EXPECT_EQ(send({202, 50, 0, 0, vb::Variant(u"Città"_s)}),
              std::pair(Binding{SQL_C_WCHAR, SQL_WVARCHAR, 50, 0}, utf16(u"Città"_s)));
    EXPECT_EQ(send({202, 10, 0, 0, vb::Variant(at4000)}),
              std::pair(Binding{SQL_C_WCHAR, SQL_WVARCHAR, 4000, 0}, utf16(at4000)));
    // Past 4000 characters the driver would cut a bounded declaration: the long type goes.
    const QString longer = at4000 + u"x"_s;
    EXPECT_EQ(send({130, 0, 0, 0, vb::Variant(longer)}),
              std::pair(Binding{SQL_C_WCHAR, SQL_WLONGVARCHAR, 4001, 0}, utf16(longer)));
    EXPECT_EQ(send({203, 0, 0, 0, vb::Variant(u"memo"_s)}).first,
              (Binding{SQL_C_WCHAR, SQL_WLONGVARCHAR, 4, 0}));
    EXPECT_EQ(send({202, 0, 0, 0, vb::Variant(u""_s)}),
              std::pair(Binding{SQL_C_WCHAR, SQL_WVARCHAR, 1, 0}, QByteArray()));
    EXPECT_EQ(send({204, 0, 0, 0, vb::Variant(QByteArray(8000, 'a'))}).first,
              (Binding{SQL_C_BINARY, SQL_VARBINARY, 8000, 0}));
    EXPECT_EQ(send({204, 0, 0, 0, vb::Variant(QByteArray(8001, 'a'))}).first,
              (Binding{SQL_C_BINARY, SQL_LONGVARBINARY, 8001, 0}));
    EXPECT_EQ(send({205, 0, 0, 0, vb::Variant(QByteArray(1, 'a'))}).first,
              (Binding{SQL_C_BINARY, SQL_LONGVARBINARY, 1, 0}));
}

TEST_F(ParametersTest, NullsAreTypedAndEveryAdoTypeBinds) {
    for (int type : {2, 3, 4, 5, 6, 7, 11, 17, 20, 72, 128, 129, 130, 131, 135, 200, 201, 202,
                     203, 204, 205}) {
        const auto [b, bytes] = send({type, 10, 10, 2, vb::Variant(vb::Null{})});
        EXPECT_EQ(bytes, QByteArray("<null>")) << type;
        EXPECT_NE(b.sqlType, 0) << type;
    }
}

TEST_F(ParametersTest, UnconvertibleValuesAndTypesAreRefused) {
    const auto refusal = [&](ParameterValue p) -> std::int32_t {
        try {
            send(std::move(p));
        } catch (const Failure& f) {
            EXPECT_TRUE(f.description().startsWith(u"Parameter 1: "_s)) << f.what();
            return f.hresult();
        }
        return 0;
    };
    EXPECT_EQ(refusal({3, 0, 0, 0, vb::Variant(u"abc"_s)}), static_cast<std::int32_t>(0x80040E07));
    EXPECT_EQ(refusal({17, 0, 0, 0, vb::Variant(std::int32_t(256))}),
              static_cast<std::int32_t>(0x80040E07));
    EXPECT_EQ(refusal({128, 0, 0, 0, vb::Variant(u"text"_s)}),
              static_cast<std::int32_t>(0x80040E07));
    EXPECT_EQ(refusal({72, 0, 0, 0, vb::Variant(u"not a guid"_s)}),
              static_cast<std::int32_t>(0x80040E07));
    EXPECT_EQ(refusal({136, 0, 0, 0, vb::Variant(std::int32_t(1))}),
              static_cast<std::int32_t>(0x80040E30));
    // Nothing was executed for a refused parameter.
    EXPECT_TRUE(api.log.filter(u"SQLExecDirect"_s).isEmpty());
}
