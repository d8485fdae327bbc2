#pragma once

#include <QMap>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace win {

// A file's version block: the four numbers of the fixed part and, per language, the string
// table ("ProductName", "FileVersion"...).
struct VersionBlock {
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t third = 0;  // high half of the second double word
    std::uint16_t fourth = 0; // its low half
    struct Localization {
        std::uint16_t language = 0;
        std::uint16_t codePage = 0;
        QMap<QString, QString> strings;
    };
    std::vector<Localization> localizations;
};

// The version block of a file. On Windows the file's own resource. Elsewhere executables carry
// none, so only the program's own file has one: the version set at build time and the product
// name; every other file has none.
std::optional<VersionBlock> readVersionBlock(const QString& path);

// The product name the program's own block carries.
QString productName();

} // namespace win
