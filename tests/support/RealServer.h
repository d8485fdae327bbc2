#pragma once

#include "platform/ado/Connection.h"

#include <QString>

// The real server of the real-server tests: the one named by UPSIZER_TEST_SERVER ("host,port" or
// "host\instance"), logged into as UPSIZER_TEST_USER with UPSIZER_TEST_PASSWORD. Without
// UPSIZER_TEST_SERVER those tests report themselves skipped (REQUIRE_REAL_SERVER), as in CI.
namespace realserver {

bool isNamed();
QString server();
QString user();
QString password();

// "Provider=SQLOLEDB;..." for the server, with the password quoted, a 5 s connection time-out and,
// when given, the initial catalog.
QString connectionString(const QString& database = {});

// An open connection to the server (master when no database is given). Throws ado::Error.
ado::ConnectionPtr open(const QString& database = {});

// A database name of the suite's own, unique to this process, so that parallel test runs on one
// server keep out of each other's way.
QString scratchName(const QString& suite);

// Drops the database if it is there and creates it empty; drops it. Both throw ado::Error.
void recreateDatabase(const QString& name);
void dropDatabase(const QString& name);

} // namespace realserver

// First statement of a real-server test: skips it, visibly, when no server is named.
#define REQUIRE_REAL_SERVER()                                                                      \
    do {                                                                                           \
        if (!realserver::isNamed()) {                                                              \
            GTEST_SKIP() << "UPSIZER_TEST_SERVER is not set: no real server to test against";      \
        }                                                                                          \
    } while (false)
