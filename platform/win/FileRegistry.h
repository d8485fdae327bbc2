#pragma once

#include "platform/win/Registry.h"

#include <QMutex>
#include <QStringList>

#include <map>
#include <optional>

namespace win {

// The registry where there is no system registry: one JSON file per root in a folder of its own
// (HKEY_CURRENT_USER.json, HKEY_LOCAL_MACHINE.json), with the system's semantics: keys and values
// by name without regard to case (the first spelling stays), subkeys listed in the order of their
// names, handles that go stale when their key is deleted, a key with subkeys that cannot be
// deleted. Every call reads the file and every change writes it whole (atomically, under a lock
// file), so two processes see each other's settings as they do on Windows.
//
// A file that is not a hive of ours is never overwritten: calls on its root fail with
// reg::kAccessDenied.
class FileRegistry : public Registry {
public:
    explicit FileRegistry(QString folder);
    const QString& folder() const noexcept { return m_folder; }
    // The file that holds a root, empty for a root this store does not keep.
    QString hiveFile(HKey root) const;

    long openKey(HKey parent, const QString& subkey, HKey* result) override;
    long createKey(HKey parent, const QString& subkey, HKey* result) override;
    long closeKey(HKey key) override;
    long deleteKey(HKey parent, const QString& subkey) override;
    long enumKey(HKey key, std::uint32_t index, QString* name) override;
    long queryValue(HKey key, const QString& name, RegValue* value) override;
    long setValue(HKey key, const QString& name, const RegValue& value) override;
    long deleteValue(HKey key, const QString& name) override;

    struct Node;

private:
    struct Place {
        HKey root = 0;
        QStringList path; // names as stored
    };
    std::optional<Place> place(HKey key) const;
    HKey issue(Place place);
    // Runs `step` on the hive of `key`'s root, under the lock; saves when `step` changed it.
    template <class Step> long withHive(HKey key, bool write, Step&& step);

    QString m_folder;
    mutable QMutex m_mutex;
    std::map<HKey, Place> m_open;
    HKey m_next = 0x100;
};

} // namespace win
