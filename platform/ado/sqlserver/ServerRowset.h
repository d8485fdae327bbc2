#pragma once

#include "platform/ado/MemoryRowset.h"
#include "platform/ado/Provider.h"
#include "platform/ado/sqlserver/odbc/Execution.h"

#include <deque>
#include <memory>
#include <vector>

namespace ado::sqlserver {

// The fields of a server result as ADO types them.
std::vector<ColumnInfo> columnInfos(const std::vector<odbc::Column>& columns);

// The rest of the current row set of an execution, in memory: keyset and static recordsets are
// kept on the client, since the driver's server cursors cannot carry batches.
std::unique_ptr<ProviderRowset> bufferedRowset(odbc::Execution& run, CursorTypeEnum cursorType);

class StreamingRowset;

// A connection carries one active statement. The session notes here the forward-only rowset
// still reading from it, and makes that rowset read the rest into memory before the connection
// is used again, as the OLE DB provider does with its firehose cursors.
struct ActiveStream {
    StreamingRowset* rowset = nullptr;
    void release() noexcept;
};

// A forward-only, read-only rowset that fetches from the server as the caller moves.
class StreamingRowset final : public ProviderRowset {
public:
    StreamingRowset(std::unique_ptr<odbc::Execution> run, std::shared_ptr<ActiveStream> link);
    ~StreamingRowset() override;
    StreamingRowset(const StreamingRowset&) = delete;
    StreamingRowset& operator=(const StreamingRowset&) = delete;
    StreamingRowset(StreamingRowset&&) = delete;
    StreamingRowset& operator=(StreamingRowset&&) = delete;

    // Reads every remaining row into memory and ends the statement; later moves read from
    // memory. Never throws: errors of the batch's later statements are dropped here.
    void detach() noexcept;

    const std::vector<ColumnInfo>& columns() const override { return m_columns; }
    CursorTypeEnum cursorType() const override { return CursorTypeEnum::adOpenForwardOnly; }
    bool next() override;
    void restart() override;
    bool canSeek() const override { return false; }
    RowId rowId() const override { return m_rowNumber; }
    bool seek(RowId id) override;
    vb::Variant value(int column) override;
    std::vector<PropertyValue> properties() const override { return {}; }
    bool canUpdate() const override { return false; }
    RowId insertRow(const std::vector<FieldChange>& values) override;
    void updateRow(RowId id, const std::vector<FieldChange>& values) override;
    void deleteRow(RowId id) override;

private:
    void finishStatement();

    std::unique_ptr<odbc::Execution> m_run;
    std::shared_ptr<ActiveStream> m_link;
    std::vector<ColumnInfo> m_columns;
    std::deque<odbc::Row> m_buffered;
    odbc::Row m_current;
    RowId m_rowNumber = 0;
    bool m_hasRow = false;
};

} // namespace ado::sqlserver
