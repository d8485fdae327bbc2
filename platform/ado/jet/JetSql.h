#pragma once

#include "platform/ado/Provider.h"
#include "platform/jetfile/Database.h"

#include <memory>

namespace ado::jet {

// Answers the Jet SQL this system sends, by scanning: SELECT [TOP n] with columns, *, COUNT(*),
// MAX(c) or MIN(c) (each with an optional AS name), FROM a table or a parenthesised query
// "AS name", WHERE with AND, OR, NOT, IS [NOT] NULL, =, <>, <, >, <=, >= against columns,
// numbers, 'text' and #mm/dd/yyyy# dates, and ORDER BY columns ASC or DESC. Anything else fails
// with the provider's error rather than being answered wrongly.
std::unique_ptr<ProviderRowset> runSelect(const jetfile::Database& database, const QString& text,
                                          CursorTypeEnum cursorType);

} // namespace ado::jet
