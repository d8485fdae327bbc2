#pragma once

#include "platform/vb/Variant.h"
#include "platform/win/Registry.h"

#include <QString>

// One registry key at a time, in the store nxApp lends (nxApp::RegistryStore()). The object holds
// at most one open key and closes it when it goes. Nothing here shows a message: a failure is a
// false result or the caller's default.
class nxReg {
public:
    nxReg();
    nxReg(const nxReg&) = delete;
    nxReg& operator=(const nxReg&) = delete;
    nxReg(nxReg&&) = delete;
    nxReg& operator=(nxReg&&) = delete;
    ~nxReg();

    win::HKey RegHKey() const noexcept { return m_hKey; }
    // Opens `subkey` under `root`; on success it replaces the open key, on failure that stays.
    bool RegOpen(win::HKey root, const QString& subkey) noexcept;
    // Creates `subkey` (or finds it) under `root`, 0 meaning the open key. It becomes the open
    // key only when none is open: with one open, that one stays open and values still go there.
    bool RegCreate(const QString& subkey, win::HKey root = 0) noexcept;
    // Deletes `subkey` of the open key; with `recursive`, its subkeys first.
    bool RegDelete(const QString& subkey, bool recursive = false) noexcept;
    void RegClose() noexcept;
    // A value of the open key: a DWORD as a 32-bit integer, anything else as the text up to its
    // first NUL, trimmed. A missing value, one of blanks, or one over 1,023 bytes gives `def`.
    vb::Variant GetVal(const QString& name, const vb::Variant& def = {}) noexcept;
    // Integers, booleans and bytes become a DWORD (true is 1); everything else REG_SZ text.
    bool SetVal(const QString& name, const vb::Variant& value) noexcept;
    bool DelVal(const QString& name) noexcept;

private:
    win::HKey m_hKey = 0;
};
