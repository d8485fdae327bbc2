#include "frame/nxFileVersion.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxSys.h"

#include "platform/win/FileVersion.h"

#include <array>

using namespace Qt::StringLiterals;

const QString& nxFileVersion::StringName(int index) {
    static const std::array<QString, kStringCount> kNames = {
        u"Comments"_s,     u"CompanyName"_s,    u"FileDescription"_s, u"FileVersion"_s,
        u"InternalName"_s, u"LegalCopyright"_s, u"LegalTrademarks"_s, u"OriginalFilename"_s,
        u"ProductName"_s,  u"ProductVersion"_s, u"PrivateBuild"_s,    u"SpecialBuild"_s};
    static const QString kNone;
    return index >= 0 && index < kStringCount ? kNames[static_cast<std::size_t>(index)] : kNone;
}

nxFileVersion::nxFileVersion() : m_enabled(nxApp::IsInit()) {}

void nxFileVersion::clear() {
    m_fullName.clear();
    m_hasVersion = false;
    m_major = m_minor = m_revision = m_build = 0;
    m_languages.clear();
    m_strings.clear();
}

void nxFileVersion::FullName(const QString& path) {
    clear();
    m_fullName = path;
    if (!m_enabled || !nxApp::Sys().FileExist(path)) {
        return;
    }
    IgnoreErrors([&] {
        const auto block = win::readVersionBlock(path);
        if (!block) {
            return;
        }
        m_hasVersion = true;
        m_major = static_cast<std::int16_t>(block->major);
        m_minor = static_cast<std::int16_t>(block->minor);
        m_revision = static_cast<std::int16_t>(block->third);
        m_build = static_cast<std::int16_t>(block->fourth);
        for (const auto& loc : block->localizations) {
            m_languages.append(QString::number(loc.language, 16).rightJustified(4, u'0').toUpper() +
                               QString::number(loc.codePage, 16).rightJustified(4, u'0').toUpper());
            QStringList values;
            for (int i = 0; i < kStringCount; ++i) {
                values.append(loc.strings.value(StringName(i)).trimmed());
            }
            m_strings.append(values);
        }
    });
}

QString nxFileVersion::Language(int index) const {
    return index >= 0 && index < m_languages.size() ? m_languages[index] : QString();
}

QString nxFileVersion::Value(int index, const QString& name) const {
    if (index < 0 || index >= m_strings.size()) {
        return {};
    }
    for (int i = 0; i < kStringCount; ++i) {
        if (StringName(i).compare(name, Qt::CaseInsensitive) == 0) {
            return m_strings[index][i];
        }
    }
    return {};
}
