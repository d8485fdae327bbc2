#pragma once

#include "platform/ado/Provider.h"
#include "platform/ado/recording/Journal.h"
#include "platform/ado/recording/Script.h"

#include <QString>

#include <memory>

namespace ado::recording {

// A provider for tests, registered in place of a real one (ado::ScopedProvider): it records
// every connection string, statement, parameter value, schema request, transaction and catalog
// change in its Journal, and answers from its Script.
class RecordingProvider : public Provider {
public:
    explicit RecordingProvider(QString name = QStringLiteral("SQLOLEDB"));

    Script& script() noexcept { return *m_script; }
    Journal& journal() noexcept { return *m_journal; }

    QString name() const override { return m_name; }
    std::unique_ptr<ProviderSession> open(const OpenRequest& request) override;
    void createDatabase(const ConnectionString& connectionString) override;

private:
    QString m_name;
    std::shared_ptr<Script> m_script;
    std::shared_ptr<Journal> m_journal;
};

} // namespace ado::recording
