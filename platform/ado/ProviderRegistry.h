#pragma once

#include "platform/ado/Provider.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace ado {

// The providers known to this process, by the name a connection string gives in "Provider=".
// Names match without regard to case. The built-in providers register themselves at first use;
// a test may put another one in place of a name for a while (ScopedProvider).
class ProviderRegistry {
public:
    static ProviderRegistry& instance();

    // Registers `provider` under `name`; returns the provider that had the name before, if any.
    std::shared_ptr<Provider> put(const QString& name, std::shared_ptr<Provider> provider);
    // Null when no provider has the name.
    std::shared_ptr<Provider> find(QStringView name) const;
    // Throws adErrProviderNotFound when no provider has the name.
    std::shared_ptr<Provider> get(QStringView name) const;

private:
    ProviderRegistry();

    mutable std::mutex m_mutex;
    std::vector<std::pair<QString, std::shared_ptr<Provider>>> m_providers;
};

// Puts a provider in place of a name for the lifetime of the object, then restores the previous.
class ScopedProvider {
public:
    ScopedProvider(QString name, std::shared_ptr<Provider> provider);
    ~ScopedProvider();
    ScopedProvider(const ScopedProvider&) = delete;
    ScopedProvider& operator=(const ScopedProvider&) = delete;
    ScopedProvider(ScopedProvider&&) = delete;
    ScopedProvider& operator=(ScopedProvider&&) = delete;

private:
    QString m_name;
    std::shared_ptr<Provider> m_previous;
};

} // namespace ado
