#pragma once

#include "platform/ado/Enums.h"
#include "platform/ado/Properties.h"
#include "platform/ado/Provider.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

namespace ado {

class Recordset;

// A column of the current record. Values are read from the provider when asked, so that a scan
// that reads few columns decodes few.
class Field {
public:
    Field(Recordset& owner, int index, const ColumnInfo& info);

    const QString& Name() const noexcept { return m_info.name; }
    DataTypeEnum Type() const noexcept { return m_info.type; }
    long DefinedSize() const noexcept { return m_info.definedSize; }
    long Attributes() const noexcept { return m_info.attributes; }
    std::uint8_t Precision() const noexcept { return m_info.precision; }
    std::uint8_t NumericScale() const noexcept { return m_info.numericScale; }
    // The length of the current value: characters of text, bytes of binary data, else the size.
    long ActualSize() const;

    // The value, with a pending edit if there is one. Throws adErrNoCurrentRecord at BOF or EOF.
    vb::Variant Value() const;
    // Starts or continues an edit of the current record (or fills the new one of AddNew).
    void setValue(const vb::Variant& value);
    // The value as the provider holds it, without pending edits.
    vb::Variant UnderlyingValue() const;
    vb::Variant OriginalValue() const { return UnderlyingValue(); }

    ado::Properties& Properties() noexcept { return m_properties; }
    int index() const noexcept { return m_index; }

private:
    Recordset& m_owner;
    int m_index;
    ColumnInfo m_info;
    ado::Properties m_properties{QStringLiteral("ADODB.Properties")};
};

class Fields {
public:
    explicit Fields(Recordset& owner) : m_owner(owner) {}

    long Count() const noexcept { return static_cast<long>(m_items.size()); }
    // Throws adErrItemNotFound for a bad index or an unknown name (matched without regard to case).
    Field& Item(long index) const;
    Field& Item(QStringView name) const;
    Field* find(QStringView name) const;

    void reset(const std::vector<ColumnInfo>& columns);
    void clear() { m_items.clear(); }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    Recordset& m_owner;
    std::vector<std::unique_ptr<Field>> m_items;
};

} // namespace ado
