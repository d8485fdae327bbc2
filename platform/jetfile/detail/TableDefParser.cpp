#include "platform/jetfile/detail/TableDefParser.h"

#include "platform/jetfile/detail/ByteReader.h"
#include "platform/jetfile/detail/Text.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {

constexpr std::size_t kNextPageOffset = 4;
constexpr std::size_t kContinuationDataOffset = 8;
constexpr std::size_t kRowCountOffset = 16;
constexpr std::size_t kAutoNumberOffset = 20;
constexpr std::size_t kTableTypeOffset = 40;
constexpr std::size_t kMaxColumnsOffset = 41;
constexpr std::size_t kVarColumnsOffset = 43;
constexpr std::size_t kColumnCountOffset = 45;
constexpr std::size_t kLogicalIndexCountOffset = 47;
constexpr std::size_t kRealIndexCountOffset = 51;
constexpr std::size_t kOwnedPagesOffset = 55;
constexpr std::size_t kIndexCountsOffset = 63;
constexpr std::size_t kIndexCountSize = 12;
constexpr std::size_t kColumnSize = 25;
constexpr int kIndexColumnSlots = 10;
constexpr std::uint16_t kUnusedColumn = 0xFFFF;
// Jet allows 255 columns and 32 indexes; a definition that claims far more is damaged, and
// refusing it early keeps memory bounded.
constexpr std::uint32_t kMaxIndexes = 256;
constexpr std::size_t kMaxDefinitionPages = 256;

std::vector<std::uint8_t> assemble(const PageSource& source, std::uint32_t first,
                                   const QString& name) {
    std::vector<std::uint8_t> bytes;
    PageBuffer buffer;
    std::uint32_t number = first;
    for (std::size_t count = 0; number != 0; ++count) {
        if (count == kMaxDefinitionPages) {
            source.damaged(u"the definition of table '%1' runs over more than %2 pages"_s.arg(
                               name, QString::number(kMaxDefinitionPages)),
                           first);
        }
        const std::uint8_t* page = source.page(number, buffer);
        if (page[0] != kPageTableDef) {
            source.damaged(
                u"expected a table definition page of table '%1', found page type %2"_s.arg(
                    name, QString::number(page[0])),
                number);
        }
        const std::size_t from = count == 0 ? 0 : kContinuationDataOffset;
        bytes.insert(bytes.end(), page + from, page + kPageSize);
        number = le32(page + kNextPageOffset);
    }
    return bytes;
}

QString readName(ByteReader& in) {
    const std::uint16_t length = in.u16();
    QString name;
    if (!decodeUtf16(in.bytes(length), length, name)) {
        in.fail(u"a name of odd byte length"_s);
    }
    return name;
}

Column readColumn(ByteReader& in, std::size_t at, int displayIndex) {
    const std::uint8_t* d = in.at(at, kColumnSize);
    Column c;
    c.typeCode = d[0];
    c.number = le16(d + 5);
    c.varIndex = le16(d + 7);
    c.precision = d[11];
    c.scale = d[12];
    c.flags = d[15];
    c.extFlags = d[16];
    c.fixedOffset = le16(d + 21);
    c.length = le16(d + 23);
    c.displayIndex = displayIndex;
    return c;
}

void readColumns(ByteReader& in, TableDefinition& def, int columnCount, std::size_t at) {
    def.columns.reserve(static_cast<std::size_t>(columnCount));
    for (int i = 0; i < columnCount; ++i) {
        def.columns.push_back(readColumn(in, at + kColumnSize * static_cast<std::size_t>(i), i));
    }
    in.seek(at + kColumnSize * static_cast<std::size_t>(columnCount));
    for (auto& column : def.columns) {
        column.name = readName(in);
    }
    std::stable_sort(def.columns.begin(), def.columns.end(),
                     [](const Column& a, const Column& b) { return a.number < b.number; });
    for (std::size_t i = 0; i < def.columns.size(); ++i) {
        if (i > 0 && def.columns[i].number == def.columns[i - 1].number) {
            in.fail(u"two columns share the number %1"_s.arg(def.columns[i].number));
        }
        def.columns[i].index = static_cast<int>(i);
    }
}

struct RealIndex {
    std::vector<IndexColumn> columns;
    std::uint8_t flags = 0;
    std::uint32_t entryCount = 0;
};

std::vector<RealIndex> readRealIndexes(ByteReader& in, const TableDefinition& def,
                                       std::uint32_t count) {
    std::vector<RealIndex> real(count);
    for (std::uint32_t i = 0; i < count; ++i) {
        real[i].entryCount = le32(in.at(kIndexCountsOffset + kIndexCountSize * i + 4, 4));
        in.skip(4);
        for (int slot = 0; slot < kIndexColumnSlots; ++slot) {
            const std::uint16_t number = in.u16();
            const std::uint8_t order = in.u8();
            if (number == kUnusedColumn) {
                continue;
            }
            const auto found = std::find_if(def.columns.begin(), def.columns.end(),
                                            [&](const Column& c) { return c.number == number; });
            if (found == def.columns.end()) {
                in.fail(u"index %1 names column number %2, which does not exist"_s.arg(
                    QString::number(i), QString::number(number)));
            }
            real[i].columns.push_back({found->index, found->name, (order & 0x01) != 0});
        }
        in.skip(4 + 4 + 4); // usage map, first page, unknown
        real[i].flags = in.u8();
        in.skip(5);
    }
    return real;
}

void readLogicalIndexes(ByteReader& in, TableDefinition& def, const std::vector<RealIndex>& real,
                        std::uint32_t count) {
    def.indexes.resize(count);
    for (auto& index : def.indexes) {
        in.skip(4);
        index.number = static_cast<int>(in.u32());
        const std::uint32_t dataNumber = in.u32();
        const std::uint8_t otherTableType = in.u8();
        const auto otherIndex = static_cast<std::int32_t>(in.u32());
        const std::uint32_t otherPage = in.u32();
        const std::uint8_t cascadeUpdates = in.u8();
        const std::uint8_t cascadeDeletes = in.u8();
        const std::uint8_t kind = in.u8();
        in.skip(4);
        if (dataNumber >= real.size()) {
            in.fail(u"logical index %1 refers to physical index %2 of %3"_s.arg(
                QString::number(index.number), QString::number(dataNumber),
                QString::number(real.size())));
        }
        if (kind > 2) {
            in.fail(u"logical index %1 has unknown type %2"_s.arg(QString::number(index.number),
                                                                  QString::number(kind)));
        }
        index.dataNumber = static_cast<int>(dataNumber);
        index.kind = static_cast<IndexKind>(kind);
        index.flags = real[dataNumber].flags;
        index.columns = real[dataNumber].columns;
        index.entryCount = real[dataNumber].entryCount;
        if (index.kind == IndexKind::ForeignKey && otherIndex != -1) {
            index.reference = IndexReference{otherTableType == 1,
                                             otherIndex,
                                             otherPage,
                                             (cascadeUpdates & 0x01) != 0,
                                             (cascadeDeletes & 0x01) != 0,
                                             (cascadeDeletes & 0x02) != 0};
        }
    }
    for (auto& index : def.indexes) {
        index.name = readName(in);
    }
    std::stable_sort(def.indexes.begin(), def.indexes.end(),
                     [](const Index& a, const Index& b) { return a.number < b.number; });
}

} // namespace

int fixedDataSize(const Column& column) noexcept {
    switch (column.typeCode) {
    case static_cast<std::uint8_t>(ColumnType::Boolean):
        return 0;
    case static_cast<std::uint8_t>(ColumnType::Byte):
        return 1;
    case static_cast<std::uint8_t>(ColumnType::Integer):
        return 2;
    case static_cast<std::uint8_t>(ColumnType::Long):
    case static_cast<std::uint8_t>(ColumnType::Single):
        return 4;
    case static_cast<std::uint8_t>(ColumnType::Currency):
    case static_cast<std::uint8_t>(ColumnType::Double):
    case static_cast<std::uint8_t>(ColumnType::DateTime):
        return 8;
    case static_cast<std::uint8_t>(ColumnType::Guid):
        return 16;
    case static_cast<std::uint8_t>(ColumnType::Numeric):
        return 17;
    default:
        return column.length; // fixed Text (CHAR), Binary and unknown types
    }
}

ParsedTable parseTableDefinition(const PageSource& source, std::uint32_t page,
                                 const QString& name) {
    const std::vector<std::uint8_t> bytes = assemble(source, page, name);
    ByteReader in(source, bytes.data(), bytes.size(), u"the definition of table '%1'"_s.arg(name),
                  page);
    ParsedTable parsed;
    TableDefinition& def = parsed.definition;
    def.name = name;
    def.page = page;
    def.rowCount = le32(in.at(kRowCountOffset, 4));
    def.lastAutoNumber = static_cast<std::int32_t>(le32(in.at(kAutoNumberOffset, 4)));
    def.tableType = *in.at(kTableTypeOffset, 1);
    parsed.storage.maxColumns = le16(in.at(kMaxColumnsOffset, 2));
    parsed.storage.variableColumns = le16(in.at(kVarColumnsOffset, 2));
    const int columnCount = le16(in.at(kColumnCountOffset, 2));
    const std::uint32_t logicalCount = le32(in.at(kLogicalIndexCountOffset, 4));
    const std::uint32_t realCount = le32(in.at(kRealIndexCountOffset, 4));
    if (logicalCount > kMaxIndexes || realCount > kMaxIndexes) {
        in.fail(u"it claims %1 indexes over %2 physical ones"_s.arg(QString::number(logicalCount),
                                                                    QString::number(realCount)));
    }
    std::copy_n(in.at(kOwnedPagesOffset, 4), 4, parsed.storage.ownedPages.begin());

    readColumns(in, def, columnCount, kIndexCountsOffset + kIndexCountSize * realCount);
    const std::vector<RealIndex> real = readRealIndexes(in, def, realCount);
    readLogicalIndexes(in, def, real, logicalCount);
    return parsed;
}

} // namespace jetfile::detail
