#pragma once

#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>
#include <optional>

// The activity lines of a conversion's events, as the window's list and the command line show
// them. An event without a line gives nothing.
namespace feed {

QString importStart();
QString importEnd();
QString sysTableImporting(const QString& table);
QString userTableImportStart(std::int16_t count);
QString userTableImporting(const QString& table, const vb::Variant& description);
QString userTableCreating(const QString& table, const vb::Variant& description);
QString userTableDataCopy(const QString& table, const vb::Variant& description);
QString userTableIndexCreating(const QString& table, const vb::Variant& description);
QString userTableNotExisting(const QString& table, const vb::Variant& description);
QString dictionaryImportStart(std::int16_t count);
QString dictionaryImporting(const QString& dictionary);
QString dictionaryNotExisting(const QString& dictionary);
// By stage: 1 creating, 2 copying, 3 indexing; any other stage has no line.
std::optional<QString> dictionaryCreating(const QString& dictionary, std::int16_t stage);
// The line of an error event by its kind; kinds outside 0 to 6 have none.
std::optional<QString> errorLine(std::int32_t kind, const QString& message);
// The text of the box a failed verification shows, with the question when it offers the log.
QString verificationBox(const QString& message, bool askViewLog);

} // namespace feed
