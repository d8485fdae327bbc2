#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/DriverString.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace odbc;

namespace {

QString freeTds(const Keywords& k, int port = kDefaultPort) {
    return driverString(readLoginSettings(k), Driver::FreeTds, port);
}

std::int32_t refusal(const Keywords& k) {
    try {
        readLoginSettings(k);
    } catch (const Failure& f) {
        EXPECT_FALSE(f.description().isEmpty());
        return f.hresult();
    }
    ADD_FAILURE() << "accepted";
    return 0;
}

} // namespace

TEST(DriverString, TheDatabaseHandleStringBecomesAFreeTdsString) {
    // The string the database handle composes for a SQL login.
    const Keywords k{{u"Provider"_s, u"SQLOLEDB"_s},
                     {u"Initial Catalog"_s, u"Archivio"_s},
                     {u"Data Source"_s, u"127.0.0.1,1433"_s},
                     {u"User ID"_s, u"sa"_s},
                     {u"Password"_s, u"p;w}d"_s},
                     {u"Persist Security Info"_s, u"true"_s},
                     {u"Command Properties"_s, u"Command Time Out=0"_s},
                     {u"Pooling"_s, u"False"_s},
                     {u"Connection Lifetime"_s, u"1"_s},
                     {u"Max Pool Size"_s, u"10"_s}};
    const LoginSettings s = readLoginSettings(k);
    EXPECT_EQ(s.server.host, u"127.0.0.1"_s);
    EXPECT_EQ(s.server.port, 1433);
    EXPECT_TRUE(s.persistSecurityInfo);
    EXPECT_EQ(s.commandTimeout, 0);
    EXPECT_FALSE(s.pooling);
    EXPECT_EQ(s.connectTimeout, -1);
    EXPECT_EQ(driverString(s, Driver::FreeTds, 1433),
              u"DRIVER={FreeTDS};Server=127.0.0.1;Port=1433;Database=Archivio;UID=sa;"
              u"PWD={p;w}d};TDS_Version=7.4;ClientCharset=UTF-8;Encryption=request;"_s);
    EXPECT_EQ(driverString(s, Driver::Microsoft18, 1433),
              u"DRIVER={ODBC Driver 18 for SQL Server};Server=tcp:127.0.0.1,1433;"
              u"Database=Archivio;UID=sa;PWD={p;w}}d};Encrypt=no;"_s);
}

TEST(DriverString, KeywordsIgnoreCaseAndSynonymsAgree) {
    EXPECT_EQ(freeTds({{u"data source"_s, u"srv"_s}, {u"INITIAL CATALOG"_s, u"db"_s},
                       {u"uid"_s, u"u"_s}, {u"PWD"_s, u""_s}}),
              freeTds({{u"Server"_s, u"srv"_s}, {u"Database"_s, u"db"_s},
                       {u"User ID"_s, u"u"_s}, {u"Password"_s, u""_s}}));
    // The last of a repeated keyword wins; an empty password is sent braced, never dropped.
    EXPECT_EQ(freeTds({{u"Data Source"_s, u"a"_s}, {u"Data Source"_s, u"b"_s}}),
              u"DRIVER={FreeTDS};Server=b;Port=1433;UID=;PWD={};TDS_Version=7.4;"
              u"ClientCharset=UTF-8;Encryption=request;"_s);
}

TEST(DriverString, ServerForms) {
    const auto at = [](const QString& ds) { return parseDataSource(ds); };
    EXPECT_EQ(at(u"srv\\SQLEXPRESS"_s).host, u"srv"_s);
    EXPECT_EQ(at(u"srv\\SQLEXPRESS"_s).instance, u"SQLEXPRESS"_s);
    EXPECT_EQ(at(u"srv\\SQLEXPRESS"_s).port, 0);
    EXPECT_EQ(at(u"srv,1500"_s).port, 1500);
    EXPECT_EQ(at(u"tcp:srv,1500"_s).host, u"srv"_s);
    // A port makes the instance irrelevant, but it is kept for the record.
    EXPECT_EQ(at(u"srv\\INST,1501"_s).port, 1501);
    EXPECT_EQ(at(u"srv\\INST,1501"_s).instance, u"INST"_s);
    EXPECT_EQ(at(u"(local)"_s).host, u"localhost"_s);
    EXPECT_EQ(at(u"."_s).host, u"localhost"_s);
    EXPECT_EQ(at(u".\\INST"_s).host, u"localhost"_s);
    EXPECT_EQ(at(u""_s).host, u"localhost"_s);
    EXPECT_TRUE(at(u"srv\\MSSQLSERVER"_s).instance.isEmpty());
    for (const QString& bad : {u"srv,0"_s, u"srv,65536"_s, u"srv,x"_s, u"np:\\\\srv\\pipe"_s,
                              u"lpc:srv"_s}) {
        EXPECT_THROW(at(bad), Failure) << bad.toStdString();
    }
}

TEST(DriverString, IntegratedSecurity) {
    for (const auto& [key, value] :
         {std::pair{u"Trusted_Connection"_s, u"yes"_s}, std::pair{u"Trusted_Connection"_s, u"Yes"_s},
          std::pair{u"Integrated Security"_s, u"SSPI"_s}, std::pair{u"Integrated Security"_s, u"true"_s}}) {
        const QString s = freeTds({{u"Data Source"_s, u"h"_s}, {key, value}});
        EXPECT_TRUE(s.contains(u";Trusted_Connection=yes;"_s)) << s.toStdString();
        EXPECT_FALSE(s.contains(u"UID="_s));
        EXPECT_FALSE(s.contains(u"PWD="_s));
    }
    // FreeTDS fails the whole configuration on "1" or "SSPI": only "yes" ever reaches it.
    EXPECT_FALSE(readLoginSettings({{u"Trusted_Connection"_s, u"no"_s}}).integrated);
    EXPECT_EQ(refusal({{u"Trusted_Connection"_s, u"maybe"_s}}), static_cast<std::int32_t>(0x80004005u));
}

TEST(DriverString, OddCharactersStayIntactOrAreRefused) {
    // A server name with a semicolon is passed whole, so the connection fails on that name
    // instead of reaching another server.
    EXPECT_TRUE(freeTds({{u"Data Source"_s, u"evil;Server=other"_s}})
                    .startsWith(u"DRIVER={FreeTDS};Server={evil;Server=other};Port=1433;"_s));
    // Unicode, quotes and braces in names and passwords.
    const QString s = freeTds({{u"Initial Catalog"_s, u"Città {x}"_s},
                               {u"User ID"_s, u"o'neil"_s}, {u"Password"_s, u"}{"_s}});
    EXPECT_TRUE(s.contains(u";Database={Città {x}};UID=o'neil;PWD={}{};"_s)) << s.toStdString();
    // FreeTDS cannot carry "};" inside a value at all.
    EXPECT_THROW(freeTds({{u"Password"_s, u"a};b"_s}}), Failure);
    const LoginSettings ms = readLoginSettings({{u"Password"_s, u"a};b"_s}});
    EXPECT_TRUE(driverString(ms, Driver::Microsoft17, 1433).contains(u";PWD={a}};b};"_s));
}

TEST(DriverString, TimeoutsEncryptionAndOtherKeywords) {
    const LoginSettings s = readLoginSettings({{u"Connect Timeout"_s, u"5"_s},
                                               {u"Use Encryption for Data"_s, u"True"_s},
                                               {u"Trust Server Certificate"_s, u"yes"_s},
                                               {u"Application Name"_s, u"Upsizer"_s},
                                               {u"Workstation ID"_s, u"PC01"_s},
                                               {u"Current Language"_s, u"Italiano"_s},
                                               {u"Packet Size"_s, u"8192"_s},
                                               {u"Network Library"_s, u"DBMSSOCN"_s},
                                               {u"Auto Translate"_s, u"True"_s},
                                               {u"OLE DB Services"_s, u"-2"_s}});
    EXPECT_EQ(s.connectTimeout, 5);
    EXPECT_EQ(driverString(s, Driver::FreeTds, 1444),
              u"DRIVER={FreeTDS};Server=localhost;Port=1444;UID=;PWD={};TDS_Version=7.4;"
              u"ClientCharset=UTF-8;Encryption=require;APP=Upsizer;WSID=PC01;Language=Italiano;"
              u"PacketSize=8192;"_s);
    EXPECT_TRUE(driverString(s, Driver::Microsoft18, 1444)
                    .contains(u";Encrypt=yes;TrustServerCertificate=yes;"_s));
    // Keywords the driver would silently ignore are refused here instead.
    EXPECT_EQ(refusal({{u"Initial Catalogue"_s, u"x"_s}}), static_cast<std::int32_t>(0x80004005u));
    EXPECT_EQ(refusal({{u"Connect Timeout"_s, u"-1"_s}}), static_cast<std::int32_t>(0x80004005u));
    EXPECT_EQ(refusal({{u"Command Properties"_s, u"Command Time Out=x"_s}}),
              static_cast<std::int32_t>(0x80004005u));
    EXPECT_EQ(refusal({{u"Command Properties"_s, u"Locking=1"_s}}),
              static_cast<std::int32_t>(0x80004005u));
    EXPECT_EQ(refusal({{u"Network Library"_s, u"dbnmpntw"_s}}),
              static_cast<std::int32_t>(0x80004005u));
}

TEST(DriverString, PasswordLeftOutUnlessPersisted) {
    const Keywords k{{u"User ID"_s, u"sa"_s}, {u"pwd"_s, u"x"_s}, {u"Password"_s, u"y"_s}};
    const Keywords out = withoutPassword(k);
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].first, u"User ID"_s);
}
