#include "frame/nxIni.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxMisc.h"
#include "frame/nxSys.h"

#include "platform/win/Profile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t kListBuffer = 32767;
constexpr std::uint32_t kValueBuffer = 1024;

// The suite's Italian booleans are stored the way the system's own are read back.
QString englishBoolean(const QString& text) {
    const QString upper = text.toUpper();
    if (upper == u"FALSO"_s) {
        return u"False"_s;
    }
    if (upper == u"VERO"_s) {
        return u"True"_s;
    }
    return text;
}

} // namespace

nxIni::nxIni() : m_enabled(nxApp::IsInit()) {}

void nxIni::SetIni(const QString& path) {
    m_path = path;
    m_winIni = nxApp::Sys().GetName(path, true).toLower() == u"win.ini"_s;
}

QString nxIni::GetIni() const {
    return m_enabled ? m_path : QString();
}

int nxIni::fillList(const QString& buffer, QStringList& list) const {
    nxMisc& misc = nxApp::Misc();
    int count = 0;
    for (int i = 1;; ++i) {
        const QString name = misc.Token(buffer, i, {}, QString(QChar(0))).trimmed();
        if (name.isEmpty()) {
            break;
        }
        if (list.size() < i + 1) {
            list.resize(i + 1);
        }
        list[i] = name;
        count = i;
    }
    return count;
}

int nxIni::GetSections(QStringList& list) const {
    if (!m_enabled) {
        return 0;
    }
    return IgnoreErrors(0, [&] {
        return fillList(win::readProfileString(std::nullopt, std::nullopt, {}, kListBuffer, m_path),
                        list);
    });
}

int nxIni::GetKeys(const QString& section, QStringList& list) const {
    if (!m_enabled) {
        return 0;
    }
    return IgnoreErrors(0, [&] {
        return fillList(win::readProfileString(section, std::nullopt, {}, kListBuffer, m_path),
                        list);
    });
}

vb::Variant nxIni::GetVal(const QString& section, const QString& key,
                          const vb::Variant& def) const {
    const vb::Variant fallback = def.isMissing() ? vb::Variant() : def;
    if (!m_enabled) {
        return fallback;
    }
    return IgnoreErrors(fallback, [&] {
        const QString given = fallback.isNull() ? QString() : fallback.toString();
        const QString text = nxApp::Misc().AnsiToVb(
            win::readProfileString(section, key, given, kValueBuffer, m_path));
        // What the platform hands back for a missing key is the default's text: the default
        // itself then comes back, with its own type.
        if (text.isEmpty() || text == given) {
            return fallback;
        }
        return vb::Variant(englishBoolean(text));
    });
}

void nxIni::SetVal(const QString& section, const QString& key, const vb::Variant& value) const {
    if (!m_enabled) {
        return;
    }
    IgnoreErrors([&] {
        win::writeProfileString(section, key, englishBoolean(value.toString()), m_path);
        if (m_winIni) {
            // The call that makes the system read win.ini again; our files are read afresh
            // at every call, so it has nothing to do.
            win::writeProfileString(std::nullopt, std::nullopt, std::nullopt, m_path);
        }
    });
}

vb::Variant nxIni::KeyValue(const QString& section, const QString& key, const vb::Variant& value,
                            bool write) const {
    if (write) {
        SetVal(section, key, value);
        return value;
    }
    return GetVal(section, key, value);
}
