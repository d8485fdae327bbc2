#pragma once

// A provider session that hands every call to another one. A test's wrapper around a provider
// (one that fails chosen statements, notes what ran, or answers a refusal) derives from it and
// overrides only the calls it changes. Header-only.

#include "platform/ado/Provider.h"

#include <memory>
#include <utility>

class ForwardingSession : public ado::ProviderSession {
public:
    explicit ForwardingSession(std::unique_ptr<ado::ProviderSession> inner)
        : m_inner(std::move(inner)) {}

    QString connectionString() const override { return m_inner->connectionString(); }
    std::vector<ado::PropertyValue> properties() const override { return m_inner->properties(); }
    void setProperty(const ado::PropertyValue& value) override { m_inner->setProperty(value); }
    ado::CommandResult execute(const ado::CommandRequest& request) override {
        return m_inner->execute(request);
    }
    std::unique_ptr<ado::ProviderRowset>
    openSchema(ado::SchemaEnum schema, const std::vector<vb::Variant>& restrictions) override {
        return m_inner->openSchema(schema, restrictions);
    }
    long beginTransaction() override { return m_inner->beginTransaction(); }
    void commitTransaction() override { m_inner->commitTransaction(); }
    void rollbackTransaction() override { m_inner->rollbackTransaction(); }
    ado::ProviderCatalog& catalog() override { return m_inner->catalog(); }
    void close() noexcept override { m_inner->close(); }

private:
    std::unique_ptr<ado::ProviderSession> m_inner;
};
