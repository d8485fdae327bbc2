#pragma once

#include "platform/win/Registry.h"

#include <QMutex>

#include <map>

namespace win {

// The system's registry through its ANSI calls, names and text in windows-1252. Handles of our
// own numbering stand for the system's, which do not fit in 32 bits on 64-bit Windows.
class Win32Registry : public Registry {
public:
    Win32Registry() = default;
    Win32Registry(const Win32Registry&) = delete;
    Win32Registry& operator=(const Win32Registry&) = delete;
    Win32Registry(Win32Registry&&) = delete;
    Win32Registry& operator=(Win32Registry&&) = delete;
    ~Win32Registry() override;

    long openKey(HKey parent, const QString& subkey, HKey* result) override;
    long createKey(HKey parent, const QString& subkey, HKey* result) override;
    long closeKey(HKey key) override;
    long deleteKey(HKey parent, const QString& subkey) override;
    long enumKey(HKey key, std::uint32_t index, QString* name) override;
    long queryValue(HKey key, const QString& name, RegValue* value) override;
    long setValue(HKey key, const QString& name, const RegValue& value) override;
    long deleteValue(HKey key, const QString& name) override;

private:
    void* native(HKey key) const;
    HKey issue(void* native);

    mutable QMutex m_mutex;
    std::map<HKey, void*> m_open;
    HKey m_next = 0x100;
};

} // namespace win
