#include "tests/support/RealServer.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace realserver {

bool isNamed() {
    return !server().isEmpty();
}

QString server() {
    return qEnvironmentVariable("UPSIZER_TEST_SERVER");
}

QString user() {
    return qEnvironmentVariable("UPSIZER_TEST_USER");
}

QString password() {
    return qEnvironmentVariable("UPSIZER_TEST_PASSWORD");
}

QString connectionString(const QString& database) {
    QString quoted = password();
    quoted.replace(u"\""_s, u"\"\""_s);
    QString text = u"Provider=SQLOLEDB;Data Source="_s + server() + u";User ID="_s + user() +
                   u";Password=\""_s + quoted + u"\";Connect Timeout=5"_s;
    if (!database.isEmpty()) {
        text += u";Initial Catalog="_s + database;
    }
    return text;
}

ado::ConnectionPtr open(const QString& database) {
    ado::ConnectionPtr connection = ado::Connection::create();
    connection->Open(connectionString(database));
    return connection;
}

QString scratchName(const QString& suite) {
    return u"upsizer_"_s + suite + u'_' + QString::number(QCoreApplication::applicationPid());
}

void recreateDatabase(const QString& name) {
    ado::ConnectionPtr master = open();
    master->Execute(u"if db_id('%1') is not null drop database %1"_s.arg(name));
    master->Execute(u"create database "_s + name);
}

void dropDatabase(const QString& name) {
    open()->Execute(u"if db_id('%1') is not null drop database %1"_s.arg(name));
}

} // namespace realserver
