#pragma once

#include "platform/ado/Provider.h"
#include "platform/ado/SchemaRowsets.h"
#include "platform/ado/recording/RecordingProvider.h"

#include <memory>

// A recording "SQLOLEDB" on which "create database X" makes X appear in the catalogs rowset, as a
// real server does, so that a database can be created and then opened; every other call goes to
// the recording provider as it is.
class CreatingServer : public ado::Provider {
public:
    CreatingServer();

    ado::recording::Script& script() { return m_inner->script(); }
    ado::recording::Journal& journal() { return m_inner->journal(); }

    QString name() const override { return m_inner->name(); }
    std::unique_ptr<ado::ProviderSession> open(const ado::OpenRequest& request) override;
    void createDatabase(const ado::ConnectionString& cs) override { m_inner->createDatabase(cs); }

private:
    std::shared_ptr<ado::recording::RecordingProvider> m_inner;
};

// A row of the catalogs rowset naming one database.
ado::Row catalogRow(const QString& name);
