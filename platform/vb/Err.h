#pragma once

#include <QString>

#include <cstdint>
#include <exception>

namespace vb {

// The thread's current run-time error: what a failing platform call or a raised error leaves
// behind, and what nxError::Fill reads. Each thread has its own.
struct ErrRecord {
    std::int32_t Number = 0;
    QString Source;
    QString Description;
    QString HelpFile;
    std::int32_t HelpContext = 0;

    void Clear() { *this = ErrRecord{}; }
};

ErrRecord& Err() noexcept;

// A raised run-time error. Raise fills the ambient error and throws this; the nx members catch it
// at their edge.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(ErrRecord record);
    const ErrRecord& record() const noexcept { return m_record; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    ErrRecord m_record;
    QByteArray m_what;
};

// Err.Raise: fills the ambient error, then throws.
[[noreturn]] void Raise(std::int32_t number, const QString& source, const QString& description,
                        const QString& helpFile = {}, std::int32_t helpContext = 0);

// The run time's own error numbers that the system meets.
namespace errors {
inline constexpr std::int32_t kInvalidProcedureCall = 5;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kSubscriptOutOfRange = 9;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kFileNotFound = 53;
inline constexpr std::int32_t kFileAlreadyOpen = 55;
inline constexpr std::int32_t kPermissionDenied = 70;
inline constexpr std::int32_t kPathFileAccessError = 75;
inline constexpr std::int32_t kPathNotFound = 76;
inline constexpr std::int32_t kObjectRequired = 424;
inline constexpr std::int32_t kInvalidUseOfNull = 94;
} // namespace errors

// The Italian run time's texts for those numbers.
QString ErrorText(std::int32_t number);

} // namespace vb
