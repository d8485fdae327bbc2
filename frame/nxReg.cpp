#include "frame/nxReg.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"

#include "platform/win/Cp1252.h"

#include <cstdlib>

namespace {

// The system's call reads into a buffer of this size; a longer value does not fit.
constexpr qsizetype kValueBuffer = 1024;

win::Registry& store() {
    return nxApp::RegistryStore();
}

bool isText(win::RegType type) {
    return type == win::RegType::Sz || type == win::RegType::ExpandSz ||
           type == win::RegType::MultiSz;
}

// What the ANSI call needs room for: text gets its terminating NUL if it was stored without one.
qsizetype neededBytes(const win::RegValue& v) {
    const bool terminated = !v.data.isEmpty() && v.data.back() == '\0';
    return v.data.size() + (isText(v.type) && !terminated ? 1 : 0);
}

} // namespace

nxReg::nxReg() = default;

nxReg::~nxReg() {
    RegClose();
}

bool nxReg::RegOpen(win::HKey root, const QString& subkey) noexcept {
    if (root == 0) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        win::HKey opened = 0;
        if (store().openKey(root, subkey.trimmed(), &opened) != win::reg::kSuccess) {
            return false;
        }
        RegClose();
        m_hKey = opened;
        return true;
    });
}

bool nxReg::RegCreate(const QString& subkey, win::HKey root) noexcept {
    if (!nxApp::IsInit()) {
        return false;
    }
    const QString key = subkey.trimmed();
    if (root == 0) {
        root = m_hKey;
    }
    if (key.isEmpty() || root == 0) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        win::HKey created = 0;
        if (store().createKey(root, key, &created) != win::reg::kSuccess) {
            return false;
        }
        if (m_hKey == 0) {
            m_hKey = created;
        } else {
            store().closeKey(created);
        }
        return true;
    });
}

bool nxReg::RegDelete(const QString& subkey, bool recursive) noexcept {
    const QString key = subkey.trimmed();
    if (!nxApp::IsInit() || key.isEmpty() || m_hKey == 0) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        bool result = true;
        if (recursive) {
            nxReg child;
            child.RegOpen(m_hKey, key);
            QString name;
            // Always entry 0: each deletion moves the next child to the front.
            while (child.m_hKey != 0 &&
                   store().enumKey(child.m_hKey, 0, &name) == win::reg::kSuccess) {
                if (!child.RegDelete(name, true)) {
                    result = false;
                    break;
                }
            }
        }
        return result && store().deleteKey(m_hKey, key) == win::reg::kSuccess;
    });
}

void nxReg::RegClose() noexcept {
    if (m_hKey != 0) {
        IgnoreErrors([&] { store().closeKey(m_hKey); });
        m_hKey = 0;
    }
}

vb::Variant nxReg::GetVal(const QString& name, const vb::Variant& def) noexcept {
    vb::Variant fallback = def.isMissing() ? vb::Variant() : def;
    if (m_hKey == 0) {
        return fallback;
    }
    return IgnoreErrors(fallback, [&] {
        win::RegValue value;
        if (store().queryValue(m_hKey, name.trimmed(), &value) != win::reg::kSuccess ||
            neededBytes(value) > kValueBuffer) {
            return fallback;
        }
        if (value.type == win::RegType::Dword) {
            if (value.data.size() != 4) {
                return fallback;
            }
            const auto* b = reinterpret_cast<const unsigned char*>(value.data.constData());
            const std::uint32_t d = b[0] | (b[1] << 8) | (b[2] << 16) | (std::uint32_t(b[3]) << 24);
            return vb::Variant(static_cast<std::int32_t>(d));
        }
        const QString text = nxApp::Misc().AnsiToVb(win::fromCp1252(value.data)).trimmed();
        return text.isEmpty() ? fallback : vb::Variant(text);
    });
}

bool nxReg::SetVal(const QString& name, const vb::Variant& value) noexcept {
    if (m_hKey == 0) {
        return false;
    }
    return IgnoreErrors(false, [&] {
        win::RegValue out;
        std::optional<std::int32_t> number;
        if (const bool* b = value.get<bool>()) {
            number = *b ? 1 : 0; // the absolute value of the system's true (-1)
        } else if (value.get<std::int16_t>() || value.get<std::int32_t>() ||
                   value.get<std::uint8_t>()) {
            number = value.toLong();
        }
        if (number) {
            const auto d = static_cast<std::uint32_t>(*number);
            const char bytes[4] = {char(d & 0xFF), char((d >> 8) & 0xFF), char((d >> 16) & 0xFF),
                                   char((d >> 24) & 0xFF)};
            out = {win::RegType::Dword, QByteArray(bytes, 4)};
        } else {
            out = {win::RegType::Sz, win::toCp1252(value.toString())};
        }
        return store().setValue(m_hKey, name.trimmed(), out) == win::reg::kSuccess;
    });
}

bool nxReg::DelVal(const QString& name) noexcept {
    if (m_hKey == 0) {
        return false;
    }
    return IgnoreErrors(
        false, [&] { return store().deleteValue(m_hKey, name.trimmed()) == win::reg::kSuccess; });
}
