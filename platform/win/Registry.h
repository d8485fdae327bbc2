#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>

namespace win {

// A key handle as the system's calls pass it: 32 bits, 0 for none.
using HKey = std::uint32_t;

// The predefined roots, with the system's numbers. (The system's own names are macros of
// <windows.h>, so ours carry a k.)
inline constexpr HKey kHKeyClassesRoot = 0x80000000;
inline constexpr HKey kHKeyCurrentUser = 0x80000001;
inline constexpr HKey kHKeyLocalMachine = 0x80000002;
inline constexpr HKey kHKeyUsers = 0x80000003;

// Value types, with the system's numbers.
enum class RegType : std::uint32_t {
    None = 0,
    Sz = 1,
    ExpandSz = 2,
    Binary = 3,
    Dword = 4,
    MultiSz = 7,
};

// The system's result codes that a registry call gives.
namespace reg {
inline constexpr long kSuccess = 0;
inline constexpr long kFileNotFound = 2;  // no such key or value
inline constexpr long kAccessDenied = 5;  // deleting a key that has subkeys, a refused write
inline constexpr long kInvalidHandle = 6; // a handle that is not open, or a root we do not keep
inline constexpr long kBadPathname = 161; // a subkey that starts with a backslash
inline constexpr long kNoMoreItems = 259;
inline constexpr long kKeyDeleted = 1018; // the key of an open handle was deleted meanwhile
} // namespace reg

// A value as the registry's ANSI calls give it: its type and its bytes. Text is in windows-1252
// and carries a terminating NUL only if the writer stored one.
struct RegValue {
    RegType type = RegType::None;
    QByteArray data;
};

// The registry, as far as the system uses it: keys under two roots, subkeys, values of the types
// above, names without regard to case. Each call returns a result code (reg::...), never throws.
// Paths of subkeys are separated by backslashes.
class Registry {
public:
    virtual ~Registry() = default;
    virtual long openKey(HKey parent, const QString& subkey, HKey* result) = 0;
    // Opens the key, creating it and every missing key above it.
    virtual long createKey(HKey parent, const QString& subkey, HKey* result) = 0;
    virtual long closeKey(HKey key) = 0;
    // Deletes a key that has no subkeys.
    virtual long deleteKey(HKey parent, const QString& subkey) = 0;
    // The name of the index-th subkey, in the order of names without regard to case.
    virtual long enumKey(HKey key, std::uint32_t index, QString* name) = 0;
    virtual long queryValue(HKey key, const QString& name, RegValue* value) = 0;
    virtual long setValue(HKey key, const QString& name, const RegValue& value) = 0;
    virtual long deleteValue(HKey key, const QString& name) = 0;
};

// The registry of this machine: the system's own on Windows, elsewhere a FileRegistry in the
// user's configuration folder (UPSIZER_REGISTRY_DIR overrides the folder).
std::shared_ptr<Registry> systemRegistry();

} // namespace win
