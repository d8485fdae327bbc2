#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/jetfile/detail/PageSource.h"

#include <array>
#include <cstdint>
#include <memory>

namespace jetfile::detail {

// What a table definition says beyond the public schema: the references to its usage maps and
// the row layout facts the row decoder needs.
struct TableStorage {
    std::array<std::uint8_t, 4> ownedPages{}; // reference to the usage map of owned pages
    int maxColumns = 0;
    int variableColumns = 0;
};

struct ParsedTable {
    TableDefinition definition;
    TableStorage storage;
};

// Reads the definition that starts on `page` (type 2, continued over further pages), checking
// every count, offset and length against the bytes actually there.
ParsedTable parseTableDefinition(const PageSource& source, std::uint32_t page, const QString& name);

// Bytes a fixed-length column takes in a row (0 for Boolean, which lives in the null mask).
int fixedDataSize(const Column& column) noexcept;

} // namespace jetfile::detail
