#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <utility>

namespace sqldmo {

// SQLDMO.NameList: the names a listing method returns, read through Count and a one-based Item.
class NameList {
public:
    NameList() = default;
    explicit NameList(QStringList names) : m_names(std::move(names)) {}

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_names.size()); }
    // Throws Error (ItemNotFound) for an ordinal outside 1..Count.
    QString Item(std::int32_t ordinal) const;

    const QStringList& names() const noexcept { return m_names; }

private:
    QStringList m_names;
};

} // namespace sqldmo
