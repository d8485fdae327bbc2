// The byte-level decoders on hand-made input: compressed text, GUIDs and property blobs,
// including the malformed blobs that make other readers loop for ever.
#include "platform/jetfile/Database.h"
#include "platform/jetfile/Error.h"
#include "platform/jetfile/detail/CursorState.h"
#include "platform/jetfile/detail/PageSource.h"
#include "platform/jetfile/detail/PropertyParser.h"
#include "platform/jetfile/detail/Text.h"

#include "tests/support/TestFiles.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace jetfile::detail;

namespace {

QString text(std::initializer_list<int> bytes) {
    std::vector<std::uint8_t> b;
    for (int v : bytes) {
        b.push_back(static_cast<std::uint8_t>(v));
    }
    QString out;
    EXPECT_TRUE(decodeText(b.data(), b.size(), out));
    return out;
}

QByteArray le16(int v) {
    return QByteArray(1, char(v & 0xFF)) + char((v >> 8) & 0xFF);
}
QByteArray le32(int v) {
    return le16(v & 0xFFFF) + le16((v >> 16) & 0xFFFF);
}
QByteArray utf16(const QString& s) {
    return QByteArray(reinterpret_cast<const char*>(s.utf16()), s.size() * 2);
}

} // namespace

TEST(JetFileText, PlainCompressedAndMixedRuns) {
    EXPECT_EQ(text({0x41, 0x00, 0xE9, 0x00}), u"Aé"_s);
    EXPECT_EQ(text({}), QString());
    EXPECT_EQ(text({0xFF, 0xFE, 0x61, 0x62, 0x63}), u"abc"_s);
    // Compressed "ab", a switch to two-byte units for "€", a switch back for "c".
    EXPECT_EQ(text({0xFF, 0xFE, 0x61, 0x62, 0x00, 0xAC, 0x20, 0x00, 0x63}), u"ab€c"_s);
    // A surrogate pair passes through as two units.
    EXPECT_EQ(text({0x34, 0xD8, 0x1E, 0xDD}), QString::fromUtf16(u"\U0001D11E"));
    QString out;
    const std::uint8_t odd[] = {0x41, 0x00, 0x42};
    EXPECT_FALSE(decodeText(odd, 3, out));
    const std::uint8_t halfUnit[] = {0xFF, 0xFE, 0x61, 0x00, 0x20};
    EXPECT_FALSE(decodeText(halfUnit, 5, out));
}

TEST(JetFileText, DecodingAgainIntoOneStringReusesItsRoomButNeverAStringShared) {
    const std::uint8_t longer[] = {0xFF, 0xFE, 0x61, 0x62, 0x63, 0x64, 0x65, 0x66};
    const std::uint8_t shorter[] = {0x78, 0x00, 0x79, 0x00};
    QString out;
    ASSERT_TRUE(decodeText(longer, sizeof longer, out));
    const QChar* room = out.constData();
    ASSERT_TRUE(decodeText(shorter, sizeof shorter, out));
    EXPECT_EQ(out, u"xy"_s);
    EXPECT_EQ(out.constData(), room);
    const QString handedOut = out;
    ASSERT_TRUE(decodeText(longer, sizeof longer, out));
    EXPECT_EQ(out, u"abcdef"_s);
    EXPECT_EQ(handedOut, u"xy"_s);
    // Switches to two-byte units make the text shorter than its bytes.
    const std::uint8_t mixed[] = {0xFF, 0xFE, 0x61, 0x62, 0x00, 0xAC, 0x20, 0x00, 0x63};
    ASSERT_TRUE(decodeText(mixed, sizeof mixed, out));
    EXPECT_EQ(out, u"ab€c"_s);
    ASSERT_TRUE(decodeText(longer, sizeof longer, out));
    EXPECT_EQ(out, u"abcdef"_s);
}

TEST(JetFileText, GuidAsAdoShowsIt) {
    const std::uint8_t bytes[16] = {0x76, 0xA6, 0x29, 0x5A, 0x45, 0x11, 0x1A, 0x4D,
                                    0xAE, 0x47, 0x9F, 0x54, 0x15, 0xCD, 0xF2, 0xF1};
    EXPECT_EQ(guidText(bytes), u"{5A29A676-1145-4D1A-AE47-9F5415CDF2F1}"_s);
}

class JetFileProperties : public ::testing::Test {
protected:
    void SetUp() override { m_source = PageSource::open(m_dir.copyFixture(u"adox_jet4.mdb"_s)); }
    std::vector<jetfile::PropertyMap> parse(const QByteArray& blob) {
        return parseProperties(*m_source, blob, u"the properties of 'T'"_s, 7);
    }
    static QByteArray names(const QStringList& list) {
        QByteArray body;
        for (const auto& n : list) {
            body += le16(int(n.size() * 2)) + utf16(n);
        }
        return le32(int(body.size() + 6)) + le16(0x80) + body;
    }
    static QByteArray value(int type, int nameIndex, const QByteArray& data) {
        return le16(int(data.size() + 8)) + char(0) + char(type) + le16(nameIndex) +
               le16(int(data.size())) + data;
    }
    static QByteArray block(int type, const QString& name, const QByteArray& values) {
        const QByteArray nameBlock = name.isEmpty() ? le32(6) + le16(0)
                                                    : le32(int(6 + name.size() * 2)) +
                                                          le16(int(name.size() * 2)) + utf16(name);
        const QByteArray body = nameBlock + values;
        return le32(int(body.size() + 6)) + le16(type) + body;
    }

    TestDir m_dir;
    std::shared_ptr<const PageSource> m_source;
};

TEST_F(JetFileProperties, ReadsTableAndColumnBlocks) {
    const QByteArray blob =
        QByteArray("MR2", 4) + names({u"Description"_s, u"Required"_s, u"DefaultValue"_s}) +
        block(0, QString(), value(10, 0, utf16(u"the table"_s))) +
        block(1, u"Name"_s, value(1, 1, QByteArray(1, '\xFF')) + value(10, 2, utf16(u"\"abc\""_s)));
    const auto maps = parse(blob);
    ASSERT_EQ(maps.size(), 2u);
    EXPECT_EQ(maps[0].name, QString());
    EXPECT_EQ(maps[0].value(u"description"), vb::Variant(u"the table"_s));
    EXPECT_EQ(maps[1].name, u"Name"_s);
    EXPECT_EQ(maps[1].value(u"Required"), vb::Variant(true));
    EXPECT_EQ(maps[1].value(u"DefaultValue"), vb::Variant(u"\"abc\""_s));
    EXPECT_TRUE(maps[1].value(u"Format").isEmpty());
}

TEST_F(JetFileProperties, MalformedBlobsEndInAnErrorNotALoop) {
    const QByteArray head = QByteArray("MR2", 4) + names({u"Required"_s});
    const auto expectDamaged = [&](const QByteArray& blob, const QString& reason) {
        try {
            (void)parse(blob);
            ADD_FAILURE() << "no error for " << reason.toStdString();
        } catch (const jetfile::Error& e) {
            EXPECT_EQ(e.kind(), jetfile::Error::Kind::Damaged);
            EXPECT_TRUE(e.message().contains(reason)) << e.message().toStdString();
            EXPECT_EQ(e.page(), 7u);
        }
    };
    expectDamaged(QByteArray("XYZ", 4), u"unknown property format"_s);
    // A chunk of length zero would never move the parse forward.
    expectDamaged(head + le32(0) + le16(1), u"a property chunk of length 0"_s);
    expectDamaged(head + le32(1000) + le16(1), u"a property chunk of length 1000"_s);
    // A value record of length zero, likewise.
    expectDamaged(head + block(1, u"c"_s, le16(0) + QByteArray(8, 0)),
                  u"a property value of length 0"_s);
    expectDamaged(head + block(1, u"c"_s, value(1, 5, QByteArray(1, 1))),
                  u"refers to name 5 of 1"_s);
    expectDamaged(head.left(head.size() - 3), u"a property chunk of length 24"_s);
    expectDamaged(head + block(1, u"c"_s, value(8, 0, QByteArray(8, char(0xFF)))),
                  u"a date property that is not a number"_s);
}

TEST(JetFileLongValues, AChainThatLoopsEndsInAnError) {
    TestDir dir;
    const QString path = dir.copyFixture(u"test2V2000.mdb"_s);
    qint64 linkAt = 0;
    QByteArray self(4, 0);
    {
        const auto db = jetfile::Database::open(path);
        const auto* entry = db.findObject(u"MSP_PROJECTS");
        ASSERT_NE(entry, nullptr);
        auto source = PageSource::open(path);
        auto table = std::make_shared<const ParsedTable>(
            parseTableDefinition(*source, entry->tablePage(), entry->name));
        CursorState cursor(source, table);
        ASSERT_TRUE(cursor.next());
        const auto& blob = *table->definition.column(u"RESERVED_BINARY_DATA");
        const std::uint8_t* field = nullptr;
        std::size_t size = 0;
        cursor.row.data(blob, field, size);
        ASSERT_EQ(size, 12u);
        ASSERT_EQ(field[3] & 0xC0, 0); // a chain of long-value rows
        const RowPointer first = RowPointer::read(field + 4);
        PageBuffer buffer;
        const DataPage page(*source, source->page(first.page, buffer), first.page);
        linkAt = qint64(first.page) * 4096 + page.row(first.row).start;
        self = QByteArray(reinterpret_cast<const char*>(field + 4), 4);
    }
    // The first link now points at itself.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(linkAt);
    file.write(self);
    file.close();

    const auto db = jetfile::Database::open(path);
    auto cursor = db.scan(u"MSP_PROJECTS");
    ASSERT_TRUE(cursor.next());
    try {
        (void)cursor.value(u"RESERVED_BINARY_DATA");
        FAIL() << "a looping chain was read";
    } catch (const jetfile::Error& e) {
        EXPECT_TRUE(e.reason().contains(u"comes back to an earlier link"_s)) << e.what();
    }
}
