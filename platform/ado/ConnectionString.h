#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <utility>
#include <vector>

namespace ado {

// An OLE DB connection string: "keyword=value" items separated by ";". Keywords are matched
// without regard to case, blanks around keywords and values are dropped, a value may be quoted
// with ' or " (then it may hold ";" and "=", and a doubled quote stands for one), and "==" in a
// keyword stands for a literal "=". When a keyword appears twice, the later value counts.
class ConnectionString {
public:
    ConnectionString() = default;
    // Throws ado::Error (DB_E_BADINITSTRING) on an item without "=" or an unclosed quote.
    static ConnectionString parse(QStringView text);

    bool contains(QStringView keyword) const;
    std::optional<QString> find(QStringView keyword) const;
    // The value, or an empty string when the keyword is absent.
    QString value(QStringView keyword) const;

    // Replaces the value of an existing keyword in place, or appends a new item.
    void set(const QString& keyword, const QString& value);
    void remove(QStringView keyword);

    const std::vector<std::pair<QString, QString>>& items() const noexcept { return m_items; }
    // The string again, with values quoted where they need it.
    QString toString() const;

private:
    std::vector<std::pair<QString, QString>> m_items; // keyword as written, value unquoted
};

} // namespace ado
