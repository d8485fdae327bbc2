#include "platform/win/FileVersion.h"

#include <QCoreApplication>
#include <QFileInfo>

#ifdef _WIN32
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

#ifndef UPSIZER_VERSION_MAJOR
#error "the build sets the program's version (UPSIZER_VERSION_*) and UPSIZER_PRODUCT_NAME"
#endif

namespace win {

QString productName() {
    return QStringLiteral(UPSIZER_PRODUCT_NAME);
}

#ifdef _WIN32

std::optional<VersionBlock> readVersionBlock(const QString& path) {
    const auto* name = reinterpret_cast<LPCWSTR>(path.utf16());
    DWORD handle = 0;
    const DWORD size = GetFileVersionInfoSizeW(name, &handle);
    if (size == 0) {
        return std::nullopt;
    }
    QByteArray data(static_cast<qsizetype>(size), '\0');
    if (!GetFileVersionInfoW(name, 0, size, data.data())) {
        return std::nullopt;
    }
    VersionBlock block;
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    if (VerQueryValueW(data.data(), L"\\", reinterpret_cast<void**>(&fixed), &length) &&
        fixed != nullptr) {
        block.major = HIWORD(fixed->dwFileVersionMS);
        block.minor = LOWORD(fixed->dwFileVersionMS);
        block.third = HIWORD(fixed->dwFileVersionLS);
        block.fourth = LOWORD(fixed->dwFileVersionLS);
    }
    struct Translation {
        WORD language;
        WORD codePage;
    };
    Translation* translations = nullptr;
    if (!VerQueryValueW(data.data(), L"\\VarFileInfo\\Translation",
                        reinterpret_cast<void**>(&translations), &length)) {
        return block;
    }
    static const char16_t* const kKeys[] = {
        u"Comments",     u"CompanyName",    u"FileDescription", u"FileVersion",
        u"InternalName", u"LegalCopyright", u"LegalTrademarks", u"OriginalFilename",
        u"ProductName",  u"ProductVersion", u"PrivateBuild",    u"SpecialBuild"};
    for (UINT i = 0; i < length / sizeof(Translation); ++i) {
        VersionBlock::Localization loc{translations[i].language, translations[i].codePage, {}};
        for (const char16_t* key : kKeys) {
            const QString query =
                u"\\StringFileInfo\\%1%2\\%3"_s.arg(loc.language, 4, 16, QChar(u'0'))
                    .arg(loc.codePage, 4, 16, QChar(u'0'))
                    .arg(QString::fromUtf16(key));
            wchar_t* text = nullptr;
            UINT chars = 0;
            if (VerQueryValueW(data.data(), reinterpret_cast<LPCWSTR>(query.utf16()),
                               reinterpret_cast<void**>(&text), &chars) &&
                text != nullptr) {
                QString value = QString::fromWCharArray(text, static_cast<qsizetype>(chars));
                const qsizetype nul = value.indexOf(QChar(0));
                loc.strings.insert(QString::fromUtf16(key),
                                   (nul < 0 ? value : value.left(nul)).trimmed());
            }
        }
        block.localizations.push_back(std::move(loc));
    }
    return block;
}

#else

std::optional<VersionBlock> readVersionBlock(const QString& path) {
    const QString own = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    const QString asked = QFileInfo(path).canonicalFilePath();
    if (asked.isEmpty() || asked != own) {
        return std::nullopt;
    }
    VersionBlock block;
    block.major = UPSIZER_VERSION_MAJOR;
    block.minor = UPSIZER_VERSION_MINOR;
    block.third = UPSIZER_VERSION_PATCH;
    block.fourth = UPSIZER_VERSION_TWEAK;
    const QString version = QString::number(block.major) + u'.' + QString::number(block.minor) +
                            u'.' + QString::number(block.third) + u'.' +
                            QString::number(block.fourth);
    // Italian, windows-1252: the language the suite's programs declare.
    VersionBlock::Localization loc{0x0410, 1252, {}};
    loc.strings.insert(u"ProductName"_s, productName());
    loc.strings.insert(u"FileVersion"_s, version);
    loc.strings.insert(u"ProductVersion"_s, version);
    loc.strings.insert(u"OriginalFilename"_s, QFileInfo(own).fileName());
    loc.strings.insert(u"InternalName"_s, QFileInfo(own).completeBaseName());
    block.localizations.push_back(std::move(loc));
    return block;
}

#endif

} // namespace win
