#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>

// A file's version block. Setting FullName reads it: the four numbers and, per language, its
// strings. For 1.2.3.4, VerRevision is 3 and VerBuild 4.
class nxFileVersion {
public:
    static constexpr int kStringCount = 12;
    // The strings of each language, in this order.
    static const QString& StringName(int index);

    nxFileVersion();

    const QString& FullName() const noexcept { return m_fullName; }
    void FullName(const QString& path);

    bool HasVersion() const noexcept { return m_hasVersion; }
    std::int16_t VerMajor() const noexcept { return m_major; }
    std::int16_t VerMinor() const noexcept { return m_minor; }
    std::int16_t VerRevision() const noexcept { return m_revision; }
    std::int16_t VerBuild() const noexcept { return m_build; }
    int LocalizationCount() const noexcept { return static_cast<int>(m_languages.size()); }
    // Language and code page in hexadecimal, "041004E4"; empty outside 0..count-1.
    QString Language(int index) const;
    // The string `name` of the index-th language; empty when it has none.
    QString Value(int index, const QString& name) const;
    // ProductName of the first language.
    QString ProductName() const { return Value(0, QStringLiteral("ProductName")); }

private:
    void clear();

    bool m_enabled = false;
    QString m_fullName;
    bool m_hasVersion = false;
    std::int16_t m_major = 0;
    std::int16_t m_minor = 0;
    std::int16_t m_revision = 0;
    std::int16_t m_build = 0;
    QStringList m_languages;
    QList<QStringList> m_strings; // per language, kStringCount values
};
