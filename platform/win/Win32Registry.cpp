#include "platform/win/Win32Registry.h"

#include "platform/win/Cp1252.h"

#include <windows.h>

namespace win {
namespace {

HKEY predefined(HKey key) {
    switch (key) {
    case kHKeyClassesRoot:
        return HKEY_CLASSES_ROOT;
    case kHKeyCurrentUser:
        return HKEY_CURRENT_USER;
    case kHKeyLocalMachine:
        return HKEY_LOCAL_MACHINE;
    case kHKeyUsers:
        return HKEY_USERS;
    default:
        return nullptr;
    }
}

QByteArray ansi(const QString& text) {
    return toCp1252(text);
}

} // namespace

Win32Registry::~Win32Registry() {
    for (auto& [key, handle] : m_open) {
        RegCloseKey(static_cast<HKEY>(handle));
    }
}

void* Win32Registry::native(HKey key) const {
    if (HKEY root = predefined(key)) {
        return root;
    }
    QMutexLocker lock(&m_mutex);
    auto it = m_open.find(key);
    return it == m_open.end() ? nullptr : it->second;
}

HKey Win32Registry::issue(void* handle) {
    QMutexLocker lock(&m_mutex);
    while (m_open.count(m_next) != 0 || predefined(m_next) != nullptr || m_next == 0) {
        ++m_next;
    }
    const HKey key = m_next++;
    m_open.emplace(key, handle);
    return key;
}

long Win32Registry::openKey(HKey parent, const QString& subkey, HKey* result) {
    auto* from = static_cast<HKEY>(native(parent));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    HKEY opened = nullptr;
    const long rc = RegOpenKeyA(from, ansi(subkey).constData(), &opened);
    if (rc == ERROR_SUCCESS) {
        *result = issue(opened);
    }
    return rc;
}

long Win32Registry::createKey(HKey parent, const QString& subkey, HKey* result) {
    auto* from = static_cast<HKEY>(native(parent));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    HKEY created = nullptr;
    const long rc = RegCreateKeyA(from, ansi(subkey).constData(), &created);
    if (rc == ERROR_SUCCESS) {
        *result = issue(created);
    }
    return rc;
}

long Win32Registry::closeKey(HKey key) {
    if (predefined(key) != nullptr) {
        return ERROR_SUCCESS;
    }
    void* handle = nullptr;
    {
        QMutexLocker lock(&m_mutex);
        auto it = m_open.find(key);
        if (it == m_open.end()) {
            return ERROR_INVALID_HANDLE;
        }
        handle = it->second;
        m_open.erase(it);
    }
    return RegCloseKey(static_cast<HKEY>(handle));
}

long Win32Registry::deleteKey(HKey parent, const QString& subkey) {
    auto* from = static_cast<HKEY>(native(parent));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    return RegDeleteKeyA(from, ansi(subkey).constData());
}

long Win32Registry::enumKey(HKey key, std::uint32_t index, QString* name) {
    auto* from = static_cast<HKEY>(native(key));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    char buffer[256] = {};
    const long rc = RegEnumKeyA(from, index, buffer, sizeof buffer);
    if (rc == ERROR_SUCCESS) {
        *name = fromCp1252(QByteArrayView(buffer, qstrnlen(buffer, sizeof buffer)));
    }
    return rc;
}

long Win32Registry::queryValue(HKey key, const QString& name, RegValue* value) {
    auto* from = static_cast<HKEY>(native(key));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    const QByteArray valueName = ansi(name);
    DWORD type = 0;
    DWORD size = 0;
    long rc = RegQueryValueExA(from, valueName.constData(), nullptr, &type, nullptr, &size);
    if (rc != ERROR_SUCCESS) {
        return rc;
    }
    QByteArray data(static_cast<qsizetype>(size), '\0');
    rc = RegQueryValueExA(from, valueName.constData(), nullptr, &type,
                          reinterpret_cast<BYTE*>(data.data()), &size);
    if (rc == ERROR_SUCCESS) {
        data.truncate(static_cast<qsizetype>(size));
        *value = RegValue{static_cast<RegType>(type), data};
    }
    return rc;
}

long Win32Registry::setValue(HKey key, const QString& name, const RegValue& value) {
    auto* from = static_cast<HKEY>(native(key));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    return RegSetValueExA(from, ansi(name).constData(), 0, static_cast<DWORD>(value.type),
                          reinterpret_cast<const BYTE*>(value.data.constData()),
                          static_cast<DWORD>(value.data.size()));
}

long Win32Registry::deleteValue(HKey key, const QString& name) {
    auto* from = static_cast<HKEY>(native(key));
    if (from == nullptr) {
        return ERROR_INVALID_HANDLE;
    }
    return RegDeleteValueA(from, ansi(name).constData());
}

} // namespace win
