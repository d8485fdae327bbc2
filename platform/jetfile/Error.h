#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <exception>
#include <optional>

namespace jetfile {

// Why a file could not be read. The message always names the file, then the reason, then the
// page where the reader found it: "<file>: <what is wrong> (page N)".
class Error : public std::exception {
public:
    enum class Kind {
        NotJet,             // not a Jet database at all
        UnsupportedVersion, // a Jet 3 or ACE file, or an unknown format
        Damaged,            // a length, offset or page number that cannot be right
        Io,                 // the operating system refused to open or read the file
        NotFound,           // no object of that name
    };

    Error(Kind kind, const QString& file, const QString& reason,
          std::optional<std::uint32_t> page = std::nullopt);

    Kind kind() const noexcept { return m_kind; }
    const QString& file() const noexcept { return m_file; }
    const QString& reason() const noexcept { return m_reason; }
    std::optional<std::uint32_t> page() const noexcept { return m_page; }
    const QString& message() const noexcept { return m_message; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    Kind m_kind;
    QString m_file;
    QString m_reason;
    std::optional<std::uint32_t> m_page;
    QString m_message;
    QByteArray m_utf8;
};

} // namespace jetfile
