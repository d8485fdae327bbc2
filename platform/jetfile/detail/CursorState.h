#pragma once

#include "platform/jetfile/detail/DataPage.h"
#include "platform/jetfile/detail/LongValue.h"
#include "platform/jetfile/detail/RowView.h"
#include "platform/jetfile/detail/TableDefParser.h"
#include "platform/jetfile/detail/UsageMap.h"

#include <memory>
#include <optional>

namespace jetfile::detail {

// The moving parts of a RowCursor: the table's page map, the page buffers it holds (data page,
// overflow page, long-value page) and the current row.
struct CursorState {
    CursorState(std::shared_ptr<const PageSource> source, std::shared_ptr<const ParsedTable> table);

    bool next();
    void rewind();
    bool seek(std::uint32_t page, int row);

    std::shared_ptr<const PageSource> source;
    std::shared_ptr<const ParsedTable> table;
    UsageMap pages;
    PageBuffer dataBuffer;
    PageBuffer overflowBuffer;
    std::optional<DataPage> dataPage;
    int slot = -1;
    bool finished = false;
    RowView row;
    LongValueReader longValues;

private:
    bool nextPage();
    RowView followOverflow(RowSpan span);
    void readSlot();
};

} // namespace jetfile::detail
