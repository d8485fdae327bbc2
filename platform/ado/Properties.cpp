#include "platform/ado/Properties.h"

#include "platform/ado/Error.h"

using namespace Qt::StringLiterals;

namespace ado {

void Property::setValue(const vb::Variant& value) {
    if (!m_value.writable) {
        throw Error(HResult::adErrFeatureNotAvailable, adoText(HResult::adErrFeatureNotAvailable),
                    u"ADODB.Property"_s);
    }
    const vb::Variant old = m_value.value;
    m_value.value = value;
    if (m_onChange != nullptr && *m_onChange) {
        try {
            (*m_onChange)(*this);
        } catch (...) {
            m_value.value = old;
            throw;
        }
    }
}

Properties::Properties(QString source) : m_source(std::move(source)) {}

Property& Properties::Item(long index) {
    if (index < 0 || index >= Count()) {
        raise(HResult::adErrItemNotFound, m_source);
    }
    return *m_items[static_cast<std::size_t>(index)];
}

Property* Properties::find(QStringView name) const {
    for (const auto& item : m_items) {
        if (item->Name().compare(name, Qt::CaseInsensitive) == 0) {
            return item.get();
        }
    }
    return nullptr;
}

Property& Properties::Item(QStringView name) {
    if (Property* p = find(name)) {
        return *p;
    }
    raise(HResult::adErrItemNotFound, m_source);
}

const Property& Properties::Item(QStringView name) const {
    if (const Property* p = find(name)) {
        return *p;
    }
    raise(HResult::adErrItemNotFound, m_source);
}

void Properties::reset(const std::vector<PropertyValue>& values) {
    m_items.clear();
    for (const auto& value : values) {
        put(value);
    }
}

void Properties::put(PropertyValue value) {
    for (auto& item : m_items) {
        if (item->Name().compare(value.name, Qt::CaseInsensitive) == 0) {
            item = std::make_unique<Property>(std::move(value), &m_onChange);
            return;
        }
    }
    m_items.push_back(std::make_unique<Property>(std::move(value), &m_onChange));
}

std::vector<PropertyValue> Properties::values() const {
    std::vector<PropertyValue> result;
    result.reserve(m_items.size());
    for (const auto& item : m_items) {
        result.push_back({item->Name(), item->Value(), true});
    }
    return result;
}

} // namespace ado
