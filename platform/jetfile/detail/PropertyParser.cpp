#include "platform/jetfile/detail/PropertyParser.h"

#include "platform/jetfile/detail/ByteReader.h"
#include "platform/jetfile/detail/Text.h"
#include "platform/jetfile/detail/Values.h"

#include <cmath>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {

constexpr std::uint16_t kNameList = 0x80;
constexpr std::size_t kChunkHeader = 6;
constexpr std::size_t kValueHeader = 8;

QString readName(ByteReader& in) {
    const std::uint16_t length = in.u16();
    QString name;
    if (!decodeUtf16(in.bytes(length), length, name)) {
        in.fail(u"a property name of odd byte length"_s);
    }
    return name;
}

vb::Variant decodeValue(ByteReader& in, std::uint8_t type, const std::uint8_t* d, std::size_t n) {
    const auto need = [&](std::size_t size) {
        if (n < size) {
            in.fail(u"a property value of type %1 has only %2 bytes"_s.arg(QString::number(type),
                                                                           QString::number(n)));
        }
    };
    switch (static_cast<ColumnType>(type)) {
    case ColumnType::Boolean:
        need(1);
        return vb::Variant(d[0] != 0);
    case ColumnType::Byte:
        need(1);
        return vb::Variant(d[0]);
    case ColumnType::Integer:
        need(2);
        return vb::Variant(static_cast<std::int16_t>(le16(d)));
    case ColumnType::Long:
        need(4);
        return vb::Variant(static_cast<std::int32_t>(le32(d)));
    case ColumnType::Currency:
        need(8);
        return vb::Variant(vb::Currency{static_cast<std::int64_t>(le64(d))});
    case ColumnType::Single:
        need(4);
        return vb::Variant(leFloat(d));
    case ColumnType::Double:
        need(8);
        return vb::Variant(leDouble(d));
    case ColumnType::DateTime: {
        need(8);
        const double date = leDouble(d);
        if (!std::isfinite(date)) {
            in.fail(u"a date property that is not a number"_s);
        }
        return vb::Variant(oleDate(date));
    }
    case ColumnType::Text:
    case ColumnType::Memo: {
        QString text;
        if (!decodeText(d, n, text)) {
            in.fail(u"a text property of odd byte length"_s);
        }
        return vb::Variant(std::move(text));
    }
    case ColumnType::Guid:
        need(16);
        return vb::Variant(guidText(d));
    default:
        return vb::Variant(QByteArray(reinterpret_cast<const char*>(d), static_cast<qsizetype>(n)));
    }
}

void readValues(ByteReader& in, std::size_t end, const std::vector<QString>& names,
                PropertyMap& map) {
    if (in.position() < end) {
        const std::size_t start = in.position();
        const std::uint32_t nameBlock = in.u32();
        if (nameBlock < 4 || nameBlock > end - start) {
            in.fail(u"a property block name of length %1"_s.arg(nameBlock));
        }
        if (nameBlock > 6) {
            map.name = readName(in);
        }
        in.seek(start + nameBlock);
    }
    while (in.position() < end) {
        const std::size_t start = in.position();
        const std::uint16_t length = in.u16();
        if (length < kValueHeader || length > end - start) {
            in.fail(u"a property value of length %1"_s.arg(length));
        }
        Property property;
        property.ddl = in.u8() != 0;
        property.type = in.u8();
        const std::uint16_t nameIndex = in.u16();
        const std::uint16_t dataSize = in.u16();
        if (nameIndex >= names.size()) {
            in.fail(u"a property refers to name %1 of %2"_s.arg(QString::number(nameIndex),
                                                                QString::number(names.size())));
        }
        if (dataSize > length - kValueHeader) {
            in.fail(u"a property value of %1 bytes in a record of %2"_s.arg(
                QString::number(dataSize), QString::number(length)));
        }
        property.name = names[nameIndex];
        property.value = decodeValue(in, property.type, in.bytes(dataSize), dataSize);
        map.items.push_back(std::move(property));
        in.seek(start + length);
    }
}

} // namespace

std::vector<PropertyMap> parseProperties(const PageSource& source, const QByteArray& blob,
                                         const QString& what, std::uint32_t page) {
    std::vector<PropertyMap> maps;
    if (blob.isEmpty()) {
        return maps;
    }
    ByteReader in(source, reinterpret_cast<const std::uint8_t*>(blob.constData()),
                  static_cast<std::size_t>(blob.size()), what, page);
    const std::uint8_t* magic = in.bytes(4);
    if (std::memcmp(magic, "MR2\0", 4) != 0 && std::memcmp(magic, "KKD\0", 4) != 0) {
        in.fail(u"unknown property format"_s);
    }
    std::vector<QString> names;
    while (!in.atEnd()) {
        const std::size_t start = in.position();
        const std::uint32_t length = in.u32();
        const std::uint16_t type = in.u16();
        // A chunk must move the parse forward and stay inside the blob.
        if (length < kChunkHeader || length > in.size() - start) {
            in.fail(u"a property chunk of length %1"_s.arg(length));
        }
        const std::size_t end = start + length;
        if (type == kNameList) {
            while (in.position() < end) {
                names.push_back(readName(in));
            }
        } else {
            PropertyMap map;
            readValues(in, end, names, map);
            maps.push_back(std::move(map));
        }
        if (in.position() > end) {
            in.fail(u"a property chunk overruns its length"_s);
        }
        in.seek(end);
    }
    return maps;
}

} // namespace jetfile::detail
