#include "platform/ado/ProviderRegistry.h"

#include "platform/ado/BuiltinProviders.h"
#include "platform/ado/Error.h"

using namespace Qt::StringLiterals;

namespace ado {

ProviderRegistry& ProviderRegistry::instance() {
    static ProviderRegistry registry;
    return registry;
}

ProviderRegistry::ProviderRegistry() {
    for (auto& [name, provider] : builtinProviders()) {
        m_providers.emplace_back(name, std::move(provider));
    }
}

std::shared_ptr<Provider> ProviderRegistry::put(const QString& name,
                                                std::shared_ptr<Provider> provider) {
    const std::lock_guard lock(m_mutex);
    for (auto it = m_providers.begin(); it != m_providers.end(); ++it) {
        if (it->first.compare(name, Qt::CaseInsensitive) == 0) {
            auto previous = std::move(it->second);
            if (provider) {
                it->second = std::move(provider);
            } else {
                m_providers.erase(it);
            }
            return previous;
        }
    }
    if (provider) {
        m_providers.emplace_back(name, std::move(provider));
    }
    return nullptr;
}

std::shared_ptr<Provider> ProviderRegistry::find(QStringView name) const {
    const std::lock_guard lock(m_mutex);
    const QStringView trimmed = name.trimmed();
    for (const auto& [key, provider] : m_providers) {
        if (key.compare(trimmed, Qt::CaseInsensitive) == 0) {
            return provider;
        }
    }
    return nullptr;
}

std::shared_ptr<Provider> ProviderRegistry::get(QStringView name) const {
    auto provider = find(name);
    if (!provider) {
        raise(HResult::adErrProviderNotFound, u"ADODB.Connection"_s);
    }
    return provider;
}

ScopedProvider::ScopedProvider(QString name, std::shared_ptr<Provider> provider)
    : m_name(std::move(name)),
      m_previous(ProviderRegistry::instance().put(m_name, std::move(provider))) {}

ScopedProvider::~ScopedProvider() { ProviderRegistry::instance().put(m_name, std::move(m_previous)); }

} // namespace ado
