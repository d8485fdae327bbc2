#pragma once

#include "platform/vb/Variant.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>
#include <vector>

namespace ado {

// A property as a provider hands it over: name, value, and whether a caller may set it.
struct PropertyValue {
    QString name;
    vb::Variant value;
    bool writable = true;
};

class Property {
public:
    Property(PropertyValue value, const std::function<void(const Property&)>* onChange)
        : m_value(std::move(value)), m_onChange(onChange) {}

    const QString& Name() const noexcept { return m_value.name; }
    const vb::Variant& Value() const noexcept { return m_value.value; }
    // Throws adErrFeatureNotAvailable on a read-only property; a provider may refuse the value.
    void setValue(const vb::Variant& value);

private:
    PropertyValue m_value;
    const std::function<void(const Property&)>* m_onChange;
};

// The Properties collection of a connection, recordset, field or catalog object. Names are
// looked up without regard to case; a missing name is ADO's "item cannot be found" error.
class Properties {
public:
    explicit Properties(QString source = QStringLiteral("ADODB.Properties"));
    Properties(const Properties&) = delete;
    Properties& operator=(const Properties&) = delete;
    Properties(Properties&&) = delete;
    Properties& operator=(Properties&&) = delete;
    ~Properties() = default;

    long Count() const noexcept { return static_cast<long>(m_items.size()); }
    Property& Item(long index);
    Property& Item(QStringView name);
    const Property& Item(QStringView name) const;
    Property* find(QStringView name) const;

    // Replaces the whole set, as a provider reports it after an open.
    void reset(const std::vector<PropertyValue>& values);
    // Adds or replaces one.
    void put(PropertyValue value);
    std::vector<PropertyValue> values() const;
    // Called after a caller set a value; throwing from it refuses the change.
    void setOnChange(std::function<void(const Property&)> onChange) {
        m_onChange = std::move(onChange);
    }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    QString m_source;
    std::vector<std::unique_ptr<Property>> m_items;
    std::function<void(const Property&)> m_onChange;
};

} // namespace ado
