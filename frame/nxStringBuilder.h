#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

// Collects long SQL texts as windows-1252 bytes in a buffer that doubles when a piece does not
// fit, so that building a statement from many pieces copies linearly.
class nxStringBuilder {
public:
    nxStringBuilder();

    // Appends the text; when it does not fit the capacity doubles, once. A piece longer than the
    // free room plus the old capacity still does not fit: the builder is left as it was and the
    // answer is false. Pieces much smaller than that are what callers append.
    bool Append(const QString& text) noexcept;
    // The text and a CR LF.
    void AppendLine(const QString& text) noexcept;
    void Reset() noexcept;
    // The whole buffer read back, cut at the first NUL.
    QString ToString() const noexcept;

    std::int32_t Capacity() const noexcept { return m_capacity; }
    std::int32_t Length() const noexcept { return m_length; }

private:
    std::int32_t m_capacity = 0;
    std::int32_t m_length = 0;
    QByteArray m_buffer;
    bool m_enabled = false;
};
