#include "tests/console/WindowFixture.h"

#include <QHash>

#include <functional>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// What the network answers: the servers, and each server's instances; a server missing from
// the table fails to answer.
struct Network {
    QStringList servers;
    bool serversFail = false;
    QHash<QString, QStringList> instances;
    std::function<void()> during; // runs inside the first question
    int questions = 0;
};

class ScriptedServers : public ServerBrowser {
public:
    explicit ScriptedServers(Network& net) : m_net(net) {}
    sqldmo::NameList ListAvailableSQLServers() override {
        if (m_net.during) {
            m_net.during();
        }
        if (m_net.serversFail) {
            throw std::runtime_error("no network");
        }
        return sqldmo::NameList(m_net.servers);
    }

private:
    Network& m_net;
};

class ScriptedInstances : public InstanceBrowser {
public:
    explicit ScriptedInstances(Network& net) : m_net(net) {}
    sqldmo::NameList ListInstalledInstances(const QString& server) override {
        ++m_net.questions;
        if (!m_net.instances.contains(server)) {
            throw std::runtime_error("no answer");
        }
        return sqldmo::NameList(m_net.instances.value(server));
    }

private:
    Network& m_net;
};

} // namespace

class ServerSearchTest : public WindowTest {
protected:
    void SetUp() override {
        servers.application = [this]() -> std::unique_ptr<ServerBrowser> {
            if (!hasApplication) {
                return nullptr;
            }
            return std::make_unique<ScriptedServers>(net);
        };
        servers.server = [this]() -> std::unique_ptr<InstanceBrowser> {
            if (!hasServerObject) {
                throw std::runtime_error("cannot create");
            }
            return std::make_unique<ScriptedInstances>(net);
        };
        WindowTest::SetUp();
    }
    QStringList choices() const {
        QStringList items;
        for (int i = 0; i < serverBox()->count(); ++i) {
            items.append(serverBox()->itemText(i));
        }
        return items;
    }
    void search() const { click(buttonNamed("cmdSqlSrv")); }

    Network net;
    bool hasApplication = true;
    bool hasServerObject = true;
};

TEST_F(ServerSearchTest, InstancesAreListedWithTheLocalOneAsLocalhost) {
    net.servers = {u"SRV1"_s, u"SRV2"_s, u"MUTO"_s};
    net.instances[u"SRV1"_s] = {u"(LOCAL)"_s, u"SRV1\\SQLEXPRESS"_s};
    net.instances[u"SRV2"_s] = {u"(local)"_s};
    net.instances[u"MUTO"_s] = {}; // a server with no instance adds nothing
    search();
    EXPECT_EQ(choices(), (QStringList{u"localhost"_s, u"SRV1\\SQLEXPRESS"_s, u"localhost"_s}));
    EXPECT_EQ(serverBox()->currentText(), QString()); // nothing is chosen for the operator
    EXPECT_EQ(net.questions, 3);
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(ServerSearchTest, AServerThatFailsRepeatsTheListBeforeIt) {
    net.servers = {u"A"_s, u"GUASTO"_s, u"B"_s};
    net.instances[u"A"_s] = {u"A\\X"_s};
    net.instances[u"B"_s] = {u"B"_s};
    search();
    EXPECT_EQ(choices(), (QStringList{u"A\\X"_s, u"A\\X"_s, u"B"_s}));
}

TEST_F(ServerSearchTest, TheButtonWaitsAndTellsWhileSearching) {
    bool disabledDuring = false;
    QString statusDuring;
    net.during = [&] {
        disabledDuring = !buttonNamed("cmdSqlSrv")->isEnabled();
        statusDuring = window->StatusText();
    };
    search();
    EXPECT_TRUE(disabledDuring);
    EXPECT_EQ(statusDuring, u"Ricerca istanze SQL Server in corso..."_s);
    EXPECT_EQ(window->StatusText(), QString());
    EXPECT_TRUE(buttonNamed("cmdSqlSrv")->isEnabled());
    EXPECT_EQ(pointer->history, (std::vector<int>{11, 0}));
}

TEST_F(ServerSearchTest, WithoutTheServerListTheChoicesStay) {
    net.servers = {u"A"_s};
    net.instances[u"A"_s] = {u"A"_s};
    search();
    hasApplication = false;
    search();
    EXPECT_EQ(choices(), QStringList{u"A"_s});
    EXPECT_EQ(window->StatusText(), QString());
    EXPECT_TRUE(buttonNamed("cmdSqlSrv")->isEnabled());
}

TEST_F(ServerSearchTest, AnEmptyOrFailedSearchWipesEarlierChoices) {
    net.servers = {u"A"_s};
    net.instances[u"A"_s] = {u"A"_s};
    search();
    net.servers.clear();
    search();
    EXPECT_TRUE(choices().isEmpty());

    search();
    net.servers = {u"A"_s};
    hasServerObject = false; // the instance lister cannot be made: the list empties
    search();
    EXPECT_TRUE(choices().isEmpty());

    hasServerObject = true;
    net.serversFail = true;
    search();
    EXPECT_TRUE(choices().isEmpty());
    EXPECT_TRUE(box->shown().empty());
}

TEST_F(ServerSearchTest, TheSearchFillsTheFieldRuleNothing) {
    typeServer(u"scritto"_s);
    type("txtDbName", u"A"_s);
    EXPECT_TRUE(buttonNamed("cmdTestConn")->isEnabled());
    net.servers = {u"A"_s};
    net.instances[u"A"_s] = {u"A"_s};
    search(); // the field empties with the list, and the rule follows it
    EXPECT_EQ(serverBox()->currentText(), QString());
    EXPECT_FALSE(buttonNamed("cmdTestConn")->isEnabled());
}
