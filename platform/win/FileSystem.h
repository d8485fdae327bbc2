#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

namespace win {

// File attributes by the system's numbers. Where files have no such attributes they are read
// from what there is: read-only is a file its owner may not write, hidden a name that starts
// with a dot, a file always has the archive bit; system and compressed are never set.
namespace attr {
inline constexpr std::uint32_t kReadOnly = 1;
inline constexpr std::uint32_t kHidden = 2;
inline constexpr std::uint32_t kSystem = 4;
inline constexpr std::uint32_t kDirectory = 16;
inline constexpr std::uint32_t kArchive = 32;
inline constexpr std::uint32_t kNormal = 128;
inline constexpr std::uint32_t kCompressed = 0x800;
} // namespace attr

std::optional<std::uint32_t> fileAttributes(const QString& path);
// Sets the attributes a file can carry here (read-only everywhere; on Windows all of them).
bool setFileAttributes(const QString& path, std::uint32_t attributes);

// True when the file cannot be had for reading and writing with every sharing refused: another
// process (or another open file of ours) holds it, or we lack the rights. On Windows that is the
// system's sharing; elsewhere an exclusive flock(), which LockedFile takes for the same reason.
bool fileHeldElsewhere(const QString& path);

// A file open for appending that no one else may open the same way: the log's. Writes go to the
// system at once.
class LockedFile {
public:
    LockedFile() = default;
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;
    LockedFile(LockedFile&&) = delete;
    LockedFile& operator=(LockedFile&&) = delete;
    ~LockedFile();

    // Opens `path` for appending, creating it; false (with the system's error code in `error`)
    // when it cannot be opened or someone holds it.
    bool openAppend(const QString& path, long* error = nullptr);
    bool write(QByteArrayView bytes);
    void close();
    bool isOpen() const noexcept { return m_handle != kNone; }

private:
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t m_handle = kNone;
};

// Copies a file over an existing one; false with the system's error code in `error`.
bool copyFile(const QString& source, const QString& target, long* error);

// The system's text for an error code of its own; empty when it has none.
QString systemErrorText(long code);

// Milliseconds since the machine started, wrapping at 32 bits, as GetTickCount counts.
std::uint32_t tickCount();

QString computerName();
// The Windows and system folders; empty where there are none.
QString windowsFolder();
QString systemFolder();

// A number standing for this program's module, as the system's instance handle does (the
// process id where there are no module handles), and the full path of the module it names;
// empty for a module we do not know.
std::int32_t processInstance();
QString moduleFileName(std::int32_t instance);

// The path's short (8.3) form where the file system keeps one; the absolute path of an existing
// file elsewhere; nothing for a path that does not exist.
std::optional<QString> shortPathName(const QString& path);

} // namespace win
