#include "platform/win/FileSystem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace win {
namespace {

#ifdef _WIN32
const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}
#else
QByteArray local(const QString& path) {
    return QFile::encodeName(path);
}
#endif

} // namespace

#ifdef _WIN32

std::optional<std::uint32_t> fileAttributes(const QString& path) {
    const DWORD a = GetFileAttributesW(wide(QDir::toNativeSeparators(path)));
    if (a == INVALID_FILE_ATTRIBUTES) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(a);
}

bool setFileAttributes(const QString& path, std::uint32_t attributes) {
    return SetFileAttributesW(wide(QDir::toNativeSeparators(path)), attributes) != 0;
}

bool fileHeldElsewhere(const QString& path) {
    HANDLE h = CreateFileW(wide(QDir::toNativeSeparators(path)), GENERIC_READ | GENERIC_WRITE, 0,
                           nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) {
        return true;
    }
    CloseHandle(h);
    return false;
}

LockedFile::~LockedFile() {
    close();
}

bool LockedFile::openAppend(const QString& path, long* error) {
    close();
    HANDLE h = CreateFileW(wide(QDir::toNativeSeparators(path)), FILE_APPEND_DATA, FILE_SHARE_READ,
                           nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) {
        if (error != nullptr) {
            *error = static_cast<long>(GetLastError());
        }
        return false;
    }
    m_handle = reinterpret_cast<std::intptr_t>(h);
    return true;
}

bool LockedFile::write(QByteArrayView bytes) {
    if (!isOpen()) {
        return false;
    }
    DWORD written = 0;
    return WriteFile(reinterpret_cast<HANDLE>(m_handle), bytes.data(),
                     static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
           written == static_cast<DWORD>(bytes.size());
}

void LockedFile::close() {
    if (isOpen()) {
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
        m_handle = kNone;
    }
}

bool copyFile(const QString& source, const QString& target, long* error) {
    if (CopyFileW(wide(QDir::toNativeSeparators(source)), wide(QDir::toNativeSeparators(target)),
                  FALSE) != 0) {
        return true;
    }
    *error = static_cast<long>(GetLastError());
    return false;
}

QString systemErrorText(long code) {
    wchar_t buffer[256] = {};
    const DWORD n = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                   nullptr, static_cast<DWORD>(code), 0, buffer, 256, nullptr);
    return QString::fromWCharArray(buffer, static_cast<qsizetype>(n));
}

std::uint32_t tickCount() {
    return GetTickCount();
}

QString windowsFolder() {
    wchar_t buffer[1024] = {};
    const UINT n = GetWindowsDirectoryW(buffer, 1024);
    return QString::fromWCharArray(buffer, n < 1024 ? static_cast<qsizetype>(n) : 0);
}

QString systemFolder() {
    wchar_t buffer[1024] = {};
    const UINT n = GetSystemDirectoryW(buffer, 1024);
    return QString::fromWCharArray(buffer, n < 1024 ? static_cast<qsizetype>(n) : 0);
}

std::int32_t processInstance() {
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(GetModuleHandleW(nullptr)));
}

QString moduleFileName(std::int32_t instance) {
    HMODULE module = instance == processInstance()
                         ? nullptr
                         : reinterpret_cast<HMODULE>(static_cast<std::intptr_t>(instance));
    wchar_t buffer[1024] = {};
    const DWORD n = GetModuleFileNameW(module, buffer, 1024);
    return QString::fromWCharArray(buffer, static_cast<qsizetype>(n));
}

std::optional<QString> shortPathName(const QString& path) {
    wchar_t buffer[1024] = {};
    const DWORD n = GetShortPathNameW(wide(path), buffer, 1024);
    if (n == 0 || n >= 1024) {
        return std::nullopt;
    }
    return QString::fromWCharArray(buffer, static_cast<qsizetype>(n));
}

#else

std::optional<std::uint32_t> fileAttributes(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        return std::nullopt;
    }
    std::uint32_t a = info.isDir() ? attr::kDirectory : attr::kArchive;
    if (!(info.permissions() & QFileDevice::WriteOwner)) {
        a |= attr::kReadOnly;
    }
    if (info.fileName().startsWith(u'.')) {
        a |= attr::kHidden;
    }
    return a;
}

bool setFileAttributes(const QString& path, std::uint32_t attributes) {
    QFileDevice::Permissions p = QFile::permissions(path);
    if (!QFileInfo::exists(path)) {
        return false;
    }
    constexpr auto kWrite = QFileDevice::WriteOwner | QFileDevice::WriteUser |
                            QFileDevice::WriteGroup | QFileDevice::WriteOther;
    if ((attributes & attr::kReadOnly) != 0) {
        p &= ~kWrite;
    } else {
        p |= QFileDevice::WriteOwner | QFileDevice::WriteUser;
    }
    return QFile::setPermissions(path, p);
}

bool fileHeldElsewhere(const QString& path) {
    const int fd = ::open(local(path).constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0) {
        return true;
    }
    const bool held = ::flock(fd, LOCK_EX | LOCK_NB) != 0;
    ::close(fd); // also drops the lock
    return held;
}

LockedFile::~LockedFile() {
    close();
}

bool LockedFile::openAppend(const QString& path, long* error) {
    close();
    const int fd = ::open(local(path).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0 || ::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        if (error != nullptr) {
            *error = errno;
        }
        if (fd >= 0) {
            ::close(fd);
        }
        return false;
    }
    m_handle = fd;
    return true;
}

bool LockedFile::write(QByteArrayView bytes) {
    if (!isOpen()) {
        return false;
    }
    const char* data = bytes.data();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t n = ::write(static_cast<int>(m_handle), data, static_cast<size_t>(left));
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            return false;
        }
        data += n;
        left -= n;
    }
    return true;
}

void LockedFile::close() {
    if (isOpen()) {
        ::close(static_cast<int>(m_handle));
        m_handle = kNone;
    }
}

bool copyFile(const QString& source, const QString& target, long* error) {
    std::error_code ec;
    std::filesystem::copy_file(std::filesystem::path(local(source).toStdString()),
                               std::filesystem::path(local(target).toStdString()),
                               std::filesystem::copy_options::overwrite_existing, ec);
    if (!ec) {
        return true;
    }
    *error = ec.value();
    return false;
}

QString systemErrorText(long code) {
    const std::string text = std::system_category().message(static_cast<int>(code));
    if (text.empty() || text.rfind("Unknown error", 0) == 0) {
        return {};
    }
    return QString::fromLocal8Bit(text);
}

std::uint32_t tickCount() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const auto ms = static_cast<std::uint64_t>(now.tv_sec) * 1000u +
                    static_cast<std::uint64_t>(now.tv_nsec) / 1000000u;
    return static_cast<std::uint32_t>(ms);
}

QString windowsFolder() {
    return {};
}
QString systemFolder() {
    return {};
}

std::int32_t processInstance() {
    return static_cast<std::int32_t>(QCoreApplication::applicationPid());
}

QString moduleFileName(std::int32_t instance) {
    if (instance != 0 && instance != processInstance()) {
        return {};
    }
    return QCoreApplication::applicationFilePath();
}

std::optional<QString> shortPathName(const QString& path) {
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        return std::nullopt;
    }
    return info.absoluteFilePath();
}

#endif

QString computerName() {
    return QSysInfo::machineHostName().trimmed();
}

} // namespace win
