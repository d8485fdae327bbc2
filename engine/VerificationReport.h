#pragma once

#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

// What the checks of the source find, as the lines ConversionLog.txt shows for one table. The
// checks append their findings; the report is written to the log, line by line, only when a
// check failed. The log stamps each line itself.
namespace engine {

class TableReport {
public:
    static const QString& separator();

    // "Anomalie tabella di sistema <name>"
    static TableReport forSystemTable(const QString& name);
    // "Anomalie tabella <name> (<archive>)"
    static TableReport forArchiveTable(const QString& name, const QString& archive);

    // A date field with values before 1753; the heading comes again for every such field.
    void addInvalidDateField(const QString& column);
    // A primary-key field with null values; the heading comes again for every such field.
    void addNullKeyField(const QString& column);
    // One offending record under the last field: "SYS_RECORD: <value> (<field value>)".
    void addRecord(const vb::Variant& sysRecord, const vb::Variant& fieldValue);
    // An index holding a memo field, then, once after the last of them, the advice.
    void addMemoIndex(const QString& index, const QString& column);
    void addMemoAdvice();
    // An index whose key is longer than the server takes.
    void addIndexTooLong(const QString& index);

    // The report as built, lines separated by CR LF.
    const QString& text() const noexcept { return m_text; }
    // The lines the log receives, in order.
    QStringList lines() const;

private:
    explicit TableReport(QString text) : m_text(std::move(text)) {}
    QString m_text;
};

// The two log lines of a table that DB_ELENCO does not list.
QStringList NotListedLines(const QString& table);

// The message a failing walk over the tables shows: "Errore <n> (<text>) - <where>".
QString WalkErrorText(long number, const QString& description, const QString& where);

// Whether a table goes through the system-table pass: no leading digit and not "DIZ_". The third
// test compares four characters with "D_", so it holds for every name longer than two letters
// and archive tables pass here as well; that breadth is wanted.
bool IsSystemTableName(const QString& name);

// The bytes an index key takes on the server, column by column.
class IndexLength {
public:
    // The server refuses a key over 900 bytes.
    static constexpr long kMaximum = 900;

    // 1 for boolean, 4 for integer, 8 for double, currency and date, the octet length for text;
    // any other type subtracts 2, as the suite has always counted.
    static long columnBytes(long dataType, long octetLength);

    void add(long dataType, long octetLength) { m_bytes += columnBytes(dataType, octetLength); }
    long bytes() const noexcept { return m_bytes; }
    bool tooLong() const noexcept { return m_bytes > kMaximum; }

private:
    long m_bytes = 0;
};

} // namespace engine
