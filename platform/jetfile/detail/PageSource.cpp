#include "platform/jetfile/detail/PageSource.h"

#include "platform/jetfile/Error.h"
#include "platform/jetfile/detail/Rc4.h"

#include <cmath>
#include <cstring>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace jetfile::detail {

namespace {

constexpr std::size_t kVersionOffset = 0x14;
constexpr std::size_t kMaskedHeaderOffset = 0x18;
constexpr std::size_t kMaskedHeaderLength = 128;
constexpr std::size_t kCodePageOffset = 0x3C;
constexpr std::size_t kDatabaseKeyOffset = 0x3E;
constexpr std::size_t kPasswordOffset = 0x42;
constexpr std::size_t kPasswordLength = 40;
constexpr std::size_t kSortOrderOffset = 0x6E;
constexpr std::size_t kCreationDateOffset = 0x72;

// The fixed key Jet masks the header with.
constexpr std::uint8_t kHeaderKey[4] = {0xC7, 0xDA, 0x39, 0x6B};

// The password is masked once more with the whole days of the creation date, truncated the way
// a C cast of an in-range double truncates; out-of-range dates saturate.
std::int32_t maskDays(double date) {
    if (std::isnan(date)) {
        return 0;
    }
    if (date >= static_cast<double>(std::numeric_limits<std::int32_t>::max())) {
        return std::numeric_limits<std::int32_t>::max();
    }
    if (date <= static_cast<double>(std::numeric_limits<std::int32_t>::min())) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(date);
}

QString decodePassword(const std::uint8_t* stored, double creationDate) {
    const auto days = static_cast<std::uint32_t>(maskDays(creationDate));
    const std::uint8_t mask[4] = {
        static_cast<std::uint8_t>(days), static_cast<std::uint8_t>(days >> 8),
        static_cast<std::uint8_t>(days >> 16), static_cast<std::uint8_t>(days >> 24)};
    QString password;
    for (std::size_t i = 0; i + 1 < kPasswordLength; i += 2) {
        const auto lo = static_cast<std::uint8_t>(stored[i] ^ mask[i % 4]);
        const auto hi = static_cast<std::uint8_t>(stored[i + 1] ^ mask[(i + 1) % 4]);
        const auto unit = static_cast<char16_t>(lo | (hi << 8));
        if (unit == 0) {
            break;
        }
        password += QChar(unit);
    }
    return password;
}

} // namespace

std::shared_ptr<const PageSource> PageSource::open(const QString& path) {
    std::shared_ptr<PageSource> source(new PageSource(path));
    source->readHeader();
    return source;
}

PageSource::PageSource(const QString& path) : m_path(path), m_file(path) {
    if (!m_file.exists()) {
        throw Error(Error::Kind::Io, path, u"the file does not exist"_s);
    }
    // ReadOnly: no write access is ever asked for, so no lock file and no change to the file.
    if (!m_file.open(QIODevice::ReadOnly)) {
        throw Error(Error::Kind::Io, path, u"cannot open the file: "_s + m_file.errorString());
    }
}

PageSource::~PageSource() {
    if (m_map != nullptr) {
        m_file.unmap(const_cast<uchar*>(m_map));
    }
}

void PageSource::damaged(const QString& reason, std::optional<std::uint32_t> page) const {
    throw Error(Error::Kind::Damaged, m_path, reason, page);
}

void PageSource::readRaw(std::uint64_t offset, std::uint8_t* into, std::size_t length) const {
    if (m_map != nullptr) {
        std::memcpy(into, m_map + offset, length);
        return;
    }
    std::lock_guard lock(m_readLock);
    if (!m_file.seek(static_cast<qint64>(offset)) ||
        m_file.read(reinterpret_cast<char*>(into), static_cast<qint64>(length)) !=
            static_cast<qint64>(length)) {
        throw Error(Error::Kind::Io, m_path, u"cannot read the file: "_s + m_file.errorString(),
                    static_cast<std::uint32_t>(offset / kPageSize));
    }
}

void PageSource::readHeader() {
    const qint64 size = m_file.size();
    if (size == 0) {
        throw Error(Error::Kind::NotJet, m_path, u"the file is empty"_s);
    }
    if (size < static_cast<qint64>(kPageSize)) {
        throw Error(Error::Kind::NotJet, m_path, u"the file is too short to be a Jet database"_s);
    }
    std::array<std::uint8_t, kPageSize> head{};
    readRaw(0, head.data(), head.size());

    static constexpr char kJetSignature[] = "Standard Jet DB";
    static constexpr char kAceSignature[] = "Standard ACE DB";
    const bool magic = head[0] == 0 && head[1] == 1 && head[2] == 0 && head[3] == 0;
    if (magic && std::memcmp(head.data() + 4, kAceSignature, 15) == 0) {
        throw Error(Error::Kind::UnsupportedVersion, m_path,
                    u"an Access 2007 or later (ACE) database; only Jet 4 is read"_s, 0);
    }
    if (!magic || std::memcmp(head.data() + 4, kJetSignature, 15) != 0) {
        throw Error(Error::Kind::NotJet, m_path, u"not a Jet database"_s, 0);
    }
    const std::uint8_t version = head[kVersionOffset];
    if (version == 0) {
        throw Error(Error::Kind::UnsupportedVersion, m_path,
                    u"a Jet 3 (Access 97) database; only Jet 4 is read"_s, 0);
    }
    if (version != 1) {
        throw Error(Error::Kind::UnsupportedVersion, m_path,
                    u"unknown Jet version %1"_s.arg(version), 0);
    }
    if (size % static_cast<qint64>(kPageSize) != 0) {
        damaged(u"the file size %1 is not a whole number of 4096-byte pages"_s.arg(size));
    }
    if (size / static_cast<qint64>(kPageSize) > std::numeric_limits<std::uint32_t>::max()) {
        damaged(u"the file is larger than any Jet database can be"_s);
    }

    Rc4(kHeaderKey, sizeof kHeaderKey)
        .apply(head.data() + kMaskedHeaderOffset, kMaskedHeaderLength);

    m_header.version = JetVersion::Jet4;
    m_header.pageCount = static_cast<std::uint32_t>(size / static_cast<qint64>(kPageSize));
    m_header.codePage = le16(head.data() + kCodePageOffset);
    m_header.databaseKey = le32(head.data() + kDatabaseKeyOffset);
    m_header.sortOrder = le16(head.data() + kSortOrderOffset);
    m_header.sortOrderVersion = head[kSortOrderOffset + 3];
    m_header.creationDate = leDouble(head.data() + kCreationDateOffset);
    m_header.password = decodePassword(head.data() + kPasswordOffset, m_header.creationDate);

    // Map the whole file when the platform allows; otherwise pages are read one by one.
    m_map = m_file.map(0, size);
}

const std::uint8_t* PageSource::page(std::uint32_t number, PageBuffer& buffer) const {
    if (number == 0 || number >= m_header.pageCount) {
        damaged(u"the page lies outside the file, which has %1 pages"_s.arg(m_header.pageCount),
                number);
    }
    const std::uint64_t offset = static_cast<std::uint64_t>(number) * kPageSize;
    if (m_header.databaseKey == 0 && m_map != nullptr) {
        return m_map + offset;
    }
    readRaw(offset, buffer.bytes.data(), kPageSize);
    if (m_header.databaseKey != 0) {
        const std::uint32_t key = m_header.databaseKey ^ number;
        const std::uint8_t keyBytes[4] = {
            static_cast<std::uint8_t>(key), static_cast<std::uint8_t>(key >> 8),
            static_cast<std::uint8_t>(key >> 16), static_cast<std::uint8_t>(key >> 24)};
        Rc4(keyBytes, sizeof keyBytes).apply(buffer.bytes.data(), kPageSize);
    }
    return buffer.bytes.data();
}

} // namespace jetfile::detail
