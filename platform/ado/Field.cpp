#include "platform/ado/Field.h"

#include "platform/ado/Error.h"
#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

namespace ado {

Field::Field(Recordset& owner, int index, const ColumnInfo& info)
    : m_owner(owner), m_index(index), m_info(info) {
    m_properties.reset(info.properties);
}

long Field::ActualSize() const {
    const vb::Variant v = Value();
    if (v.isNull()) {
        return 0;
    }
    if (const QString* s = v.get<QString>()) {
        return static_cast<long>(s->size());
    }
    if (const QByteArray* b = v.get<QByteArray>()) {
        return static_cast<long>(b->size());
    }
    return m_info.definedSize;
}

vb::Variant Field::Value() const { return m_owner.fieldValue(m_index); }

void Field::setValue(const vb::Variant& value) { m_owner.setFieldValue(m_index, value); }

vb::Variant Field::UnderlyingValue() const { return m_owner.underlyingValue(m_index); }

Field& Fields::Item(long index) const {
    if (index < 0 || index >= Count()) {
        raise(HResult::adErrItemNotFound, u"ADODB.Fields"_s);
    }
    return *m_items[static_cast<std::size_t>(index)];
}

Field* Fields::find(QStringView name) const {
    for (const auto& field : m_items) {
        if (field->Name().compare(name, Qt::CaseInsensitive) == 0) {
            return field.get();
        }
    }
    return nullptr;
}

Field& Fields::Item(QStringView name) const {
    if (Field* f = find(name)) {
        return *f;
    }
    raise(HResult::adErrItemNotFound, u"ADODB.Fields"_s);
}

void Fields::reset(const std::vector<ColumnInfo>& columns) {
    m_items.clear();
    m_items.reserve(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        m_items.push_back(std::make_unique<Field>(m_owner, static_cast<int>(i), columns[i]));
    }
}

} // namespace ado
