#pragma once

#include <QByteArray>
#include <QString>

namespace capicom {

// A COM string as the component sees it: a run of bytes. A text is its UTF-16LE code units, with
// no terminator; a "binary string" (an encrypted message, what Base64Decode gives) carries raw
// bytes and may have an odd length.
class Bstr {
public:
    Bstr() = default;
    Bstr(const QString& text); // implicit: a text is a string
    Bstr(const char16_t* text) : Bstr(QString::fromUtf16(text)) {}
    static Bstr fromBytes(QByteArray bytes);

    const QByteArray& bytes() const noexcept { return m_bytes; }
    qsizetype byteLength() const noexcept { return m_bytes.size(); }
    bool isEmpty() const noexcept { return m_bytes.isEmpty(); }
    // The text: each pair of bytes one UTF-16 code unit, taken as it is (unpaired surrogates
    // and NULs included). An odd last byte is not part of any character and is left out.
    QString toString() const;

    friend bool operator==(const Bstr&, const Bstr&) = default;

private:
    QByteArray m_bytes;
};

} // namespace capicom
