#include "platform/ado/Error.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/recording/RecordingProvider.h"

#include "tests/console/WindowFixture.h"
#include "tests/support/RealServer.h"

using namespace Qt::StringLiterals;

namespace {

class ConnectionTestTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        typeServer(u"srv\\ARCHIVIO"_s);
        type("txtDbName", u"Nuovo"_s);
    }
    QStringList opened() const {
        QStringList strings;
        for (const auto& entry : provider->journal().entries()) {
            if (entry.kind == ado::recording::Journal::Kind::Open) {
                strings << entry.text;
            }
        }
        return strings;
    }

    std::shared_ptr<ado::recording::RecordingProvider> provider =
        std::make_shared<ado::recording::RecordingProvider>(u"SQLOLEDB"_s);
    ado::ScopedProvider scoped{u"SQLOLEDB.1"_s, provider};
};

TEST_F(ConnectionTestTest, AnEmptyUserMeansWindowsAuthenticationWhateverThePassword) {
    type("txtPassword", u"ignorata"_s);
    EXPECT_EQ(window->TestConnectionString(),
              u"Provider=SQLOLEDB.1;Data Source=srv\\ARCHIVIO;Initial Catalog=master;"
              u"Trusted_Connection=yes"_s);
    box->answer(win::id::kOk);
    click(buttonNamed("cmdTestConn"));
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_EQ(box->shown()[0].text, u"Connessione riuscita."_s);
    EXPECT_EQ(box->shown()[0].flags, 64);
    ASSERT_EQ(opened().size(), 1);
    EXPECT_TRUE(opened()[0].contains(u"Initial Catalog=master"_s)) << opened()[0].toStdString();
}

TEST_F(ConnectionTestTest, UserAndPasswordGoInAsTyped) {
    type("txtUsername", u"sa"_s);
    EXPECT_TRUE(window->TestConnectionString().endsWith(u";User ID=sa;Password="_s));
    serverBox()->lineEdit()->setText(u"a;b"_s);
    type("txtPassword", u"p;w"_s);
    EXPECT_EQ(window->TestConnectionString(),
              u"Provider=SQLOLEDB.1;Data Source=a;b;Initial Catalog=master;User ID=sa;"
              u"Password=p;w"_s);
}

TEST_F(ConnectionTestTest, ARefusedLoginShowsTheFirstErrorsNumberAndText) {
    provider->script().openFails(ado::Error(ado::HResult::DB_SEC_E_AUTH_FAILED,
                                            u"Login failed for user 'sa'."_s,
                                            u"Microsoft OLE DB Provider for SQL Server"_s));
    type("txtUsername", u"sa"_s);
    box->answer(win::id::kOk);
    click(buttonNamed("cmdTestConn"));
    ASSERT_EQ(box->shown().size(), 1U);
    EXPECT_EQ(box->shown()[0].text,
              u"Connessione non riuscita (-2147217843 - Login failed for user 'sa'.). "
              u"Verificare i permessi di accesso al server SQL."_s);
    EXPECT_EQ(box->shown()[0].flags, 48);
}

// Against the server named by UPSIZER_TEST_SERVER, through the real provider.
using RealServerConnectionTest = WindowTest;

TEST_F(RealServerConnectionTest, TheServersLoginIsAcceptedAndAnUnknownOneRefused) {
    REQUIRE_REAL_SERVER();
    typeServer(realserver::server());
    type("txtDbName", u"x"_s);
    type("txtUsername", realserver::user());
    type("txtPassword", realserver::password());
    box->answer({win::id::kOk, win::id::kOk});
    click(buttonNamed("cmdTestConn"));
    // A login the server does not know. (The PostgreSQL-based T-SQL server of the development
    // machine may trust local logins whatever their password, so a wrong password alone is not
    // refused there.)
    type("txtUsername", u"_inesistente"_s);
    click(buttonNamed("cmdTestConn"));
    ASSERT_EQ(box->shown().size(), 2U);
    EXPECT_EQ(box->shown()[0].text, u"Connessione riuscita."_s);
    // The server's own number and words differ from server to server; the frame of the
    // message does not.
    EXPECT_TRUE(box->shown()[1].text.startsWith(u"Connessione non riuscita ("_s))
        << box->shown()[1].text.toStdString();
    EXPECT_TRUE(
        box->shown()[1].text.endsWith(u"). Verificare i permessi di accesso al server SQL."_s));
}

} // namespace
