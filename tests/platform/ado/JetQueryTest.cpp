// The Jet SQL the system sends, on files built by mdbgen from tools/mdbgen/examples.
#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"
#include "platform/jetfile/Database.h"
#include "tests/platform/ado/BuiltMdb.h"
#include "tests/support/TestFiles.h"

#include <QFile>

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ado::ConnectionPtr openJet(const QString& path, const QString& extra = {}) {
    auto cn = ado::Connection::create();
    cn->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path + extra);
    return cn;
}

vb::Variant single(const ado::ConnectionPtr& cn, const QString& sql, const QString& field = {}) {
    auto rs = cn->Execute(sql);
    EXPECT_FALSE(rs->Eof()) << sql.toStdString();
    return field.isEmpty() ? rs->Fields(0L).Value() : rs->Fields(field).Value();
}

} // namespace

TEST(JetQuery, DatesBeforeAndOn1753) {
    TestDir dir;
    const QString path = builtMdb(u"dates.mdb"_s, dir);
    // What the statements must give, counted on a bare scan of the file.
    const QDateTime limit = vb::makeDate(1753, 1, 1);
    long before = 0;
    long nulls = 0;
    QStringList expectedLabels;
    {
        const auto db = jetfile::Database::open(path);
        auto scan = db.scan(u"Dates");
        while (scan.next()) {
            const vb::Variant stamp = scan.value(u"Stamp");
            if (stamp.isNull()) {
                ++nulls;
            } else if (*stamp.toDate() < limit) {
                ++before;
                expectedLabels << scan.value(u"Label").toString();
            }
        }
    }
    ASSERT_GE(before, 5); // the written rows: 0100-01-01 twice, 1582 twice, 1752-12-31 23:59:59.997
    auto cn = openJet(path);
    EXPECT_EQ(*single(cn, u"select count(*) from Dates where (not Stamp is null) and (Stamp < #01/01/1753#)"_s).toLong(),
              before);
    auto rs = cn->Execute(u"select * from Dates where (not Stamp is null) and (Stamp < #01/01/1753#)"_s);
    QStringList labels;
    while (!rs->Eof()) {
        labels << rs->Fields(u"Label").Value().toString();
        rs->MoveNext();
    }
    EXPECT_EQ(labels, expectedLabels);
    EXPECT_TRUE(labels.contains(u"just before 1753"_s));
    EXPECT_FALSE(labels.contains(u"SQL Server datetime minimum"_s)); // exactly on the day
    EXPECT_EQ(*single(cn, u"select count(*) from Dates where (Stamp is null)"_s).toLong(), nulls);
    EXPECT_EQ(single(cn, u"select Label from Dates where (Stamp is null)"_s).toString(), u"NULL"_s);
    const auto total = *single(cn, u"select count(*) from Dates"_s).toLong();
    EXPECT_GT(total, 20);
    // Without an alias Jet names the column Expr1000.
    EXPECT_EQ(cn->Execute(u"select count(*) from Dates"_s)->Fields(0L).Name(), u"Expr1000"_s);
    EXPECT_EQ(*single(cn, u"SELECT COUNT(*) AS RecNum FROM (select * from Dates where (Stamp is null)) AS TempTab"_s,
                      u"RecNum"_s).toLong(), nulls);
    EXPECT_EQ(single(cn, u"SELECT MAX(Stamp) AS Num FROM (select Stamp from Dates) AS TempTab"_s, u"Num"_s),
              vb::Variant(vb::makeDate(9999, 12, 31, 23, 59, 59).addMSecs(999)));
    // A null sorts first in Jet's ascending order.
    EXPECT_TRUE(single(cn, u"select top 1 Stamp from Dates order by Stamp asc"_s).isNull());
    EXPECT_EQ(single(cn, u"select top 1 Stamp from Dates where (not Stamp is null) order by Stamp asc"_s),
              vb::Variant(vb::makeDate(100, 1, 1)));
    EXPECT_EQ(single(cn, u"select top 1 Label from Dates where (not Stamp is null) order by Stamp desc"_s).toString(),
              u"last Jet millisecond"_s);
}

TEST(JetQuery, EmptyTablesAndPasswords) {
    TestDir dir;
    const QString path = builtMdb(u"password.mdb"_s, dir);
    QString text;
    std::int32_t code = 0;
    for (const QString& extra : {QString(), u";Jet OLEDB:Database Password=wrong"_s,
                                 u";Jet OLEDB:Database Password=pa$$wörd-0123456789_"_s}) {
        try {
            openJet(path, extra);
        } catch (const ado::Error& e) {
            code = e.hresult();
            text = e.description();
        }
        EXPECT_EQ(code, static_cast<std::int32_t>(0x80040E4D)) << extra.toStdString();
        EXPECT_EQ(text, u"Not a valid password."_s);
        code = 0;
    }
    auto cn = openJet(path, u";Jet OLEDB:Database Password='Pa$$wörd-0123456789_'"_s);
    EXPECT_EQ(*single(cn, u"select count(*) from Secrets"_s).toLong(), 2);
    EXPECT_EQ(*single(cn, u"select count(*) from Secrets where (Secret < 'a')"_s).toLong(), 0);
    auto none = cn->Execute(u"select Secret from Secrets where ID > 100"_s);
    EXPECT_TRUE(none->Bof() && none->Eof());
    auto max = cn->Execute(u"SELECT MAX(ID) AS Num FROM (select ID from Secrets where ID > 100) AS TempTab"_s);
    EXPECT_TRUE(max->Fields(u"Num").Value().isNull());
}

#ifdef ADO_SOLVARIA_DIR
// The statements the conversion sends to a source of the suite's shape: the archive list in
// serial order, the database description, and every statement on a table without rows.
TEST(JetQuery, TheSuitesOwnStatementsOnASolvariaSource) {
    TestDir dir;
    const QString path = dir.file(u"solvaria.mdb"_s);
    QFile::copy(QStringLiteral(ADO_SOLVARIA_DIR) + u"/solvaria-small.mdb"_s, path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);

    // What the answers must be, from a bare scan of the file.
    struct Archive {
        vb::Variant serial;
        vb::Variant name;
    };
    std::vector<Archive> archives;
    QString description;
    QString emptyTable;
    {
        const auto db = jetfile::Database::open(path);
        auto scan = db.scan(u"DB_ELENCO");
        while (scan.next()) {
            archives.push_back({scan.value(u"SYS_SERIALE"), scan.value(u"ARCHIVIO")});
        }
        auto system = db.scan(u"QZSYSTEM");
        ASSERT_TRUE(system.next());
        description = system.value(u"DESCRIZIONE").toString();
        for (const auto& e : db.catalog()) {
            if (emptyTable.isEmpty() && e.isTable() && !e.name.startsWith(u"MSys"_s) &&
                !db.scan(e.name).next() && db.table(e.name)->primaryKey() != nullptr) {
                emptyTable = e.name;
            }
        }
    }
    ASSERT_GE(archives.size(), 2u);
    ASSERT_FALSE(emptyTable.isEmpty());
    std::stable_sort(archives.begin(), archives.end(), [](const Archive& a, const Archive& b) {
        return a.serial.toString().compare(b.serial.toString(), Qt::CaseInsensitive) < 0;
    });

    auto cn = openJet(path, u";Jet OLEDB:Database Password=brnzolvet52"_s);
    auto rs = cn->Execute(u"select SYS_SERIALE, ARCHIVIO from DB_ELENCO order by SYS_SERIALE"_s);
    ASSERT_EQ(rs->Fields().Count(), 2);
    EXPECT_EQ(rs->Fields(0L).Name(), u"SYS_SERIALE"_s);
    std::size_t i = 0;
    for (; !rs->Eof(); rs->MoveNext(), ++i) {
        ASSERT_LT(i, archives.size());
        EXPECT_EQ(rs->Fields(u"SYS_SERIALE").Value(), archives[i].serial) << i;
        EXPECT_EQ(rs->Fields(u"ARCHIVIO").Value(), archives[i].name) << i;
    }
    EXPECT_EQ(i, archives.size());

    auto system = cn->Execute(u"select DESCRIZIONE from QZSYSTEM"_s);
    ASSERT_FALSE(system->Eof());
    EXPECT_EQ(system->Fields(u"DESCRIZIONE").Value().toString(), description);
    system->MoveNext();
    EXPECT_TRUE(system->Eof());

    // A table without rows: no row, a count of 0, a maximum of Null.
    const auto def = jetfile::Database::open(path).table(emptyTable);
    const QString key = def->primaryKey()->columns[0].name;
    const QString& t = emptyTable;
    EXPECT_EQ(*single(cn, u"select count(*) from "_s + t).toLong(), 0);
    EXPECT_EQ(*single(cn, u"select count(*) from %1 where (%2 is null)"_s.arg(t, key)).toLong(), 0);
    auto top = cn->Execute(u"select top 1 %2 from %1 order by %2 asc"_s.arg(t, key));
    EXPECT_TRUE(top->Bof() && top->Eof());
    auto all = std::make_shared<ado::Recordset>();
    all->Open(u"select * from "_s + t, cn, ado::CursorTypeEnum::adOpenKeyset);
    EXPECT_TRUE(all->Bof() && all->Eof());
    EXPECT_EQ(all->RecordCount(), 0);
    EXPECT_EQ(*single(cn, u"SELECT COUNT(*) AS RecNum FROM (select * from %1) AS TempTab"_s.arg(t),
                      u"RecNum"_s).toLong(), 0);
    EXPECT_TRUE(single(cn, u"SELECT MAX(%2) AS Num FROM (select %2 from %1) AS TempTab"_s.arg(t, key),
                       u"Num"_s).isNull());
}
#endif
