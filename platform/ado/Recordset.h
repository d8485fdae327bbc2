#pragma once

#include "platform/ado/EditBuffer.h"
#include "platform/ado/Enums.h"
#include "platform/ado/Error.h"
#include "platform/ado/Field.h"
#include "platform/ado/Filter.h"
#include "platform/ado/Properties.h"
#include "platform/ado/Provider.h"
#include "platform/ado/RowNavigator.h"
#include "platform/vb/Variant.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace ado {

class Connection;
using ConnectionPtr = std::shared_ptr<Connection>;
class Recordset;
using RecordsetPtr = std::shared_ptr<Recordset>;

// ADO's Recordset over a provider rowset. A client cursor location gives a static cursor, as
// ADO's cursor engine does; rows still stream from the provider rather than being copied.
class Recordset : public std::enable_shared_from_this<Recordset> {
public:
    Recordset();
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    Recordset(Recordset&&) = delete;
    Recordset& operator=(Recordset&&) = delete;

    // Open with a statement or a table name on an open connection, or on a connection string
    // (the recordset then opens a connection of its own).
    void Open(const QString& source, const ConnectionPtr& activeConnection,
              CursorTypeEnum cursorType = CursorTypeEnum::adOpenUnspecified,
              LockTypeEnum lockType = LockTypeEnum::adLockUnspecified,
              long options = adOptionUnspecified);
    void Open(const QString& source, const QString& connectionString,
              CursorTypeEnum cursorType = CursorTypeEnum::adOpenUnspecified,
              LockTypeEnum lockType = LockTypeEnum::adLockUnspecified,
              long options = adOptionUnspecified);
    // Open with Source and ActiveConnection as set.
    void Open();
    void Close();
    long State() const noexcept;

    // BOF and EOF; EOF is a macro of the C library, hence the spelling.
    bool Bof() const;
    bool Eof() const;
    void MoveFirst();
    void MoveNext();
    void MovePrevious();
    void MoveLast();
    // Moves `records` rows from the current row, or from `start` (a bookmark) when given.
    void Move(long records, const vb::Variant& start = {});

    ado::Fields& Fields();
    Field& Fields(long index);
    Field& Fields(QStringView name);

    // A filter text in ADO's grammar; an empty text or adFilterNone removes the filter.
    vb::Variant Filter() const;
    void setFilter(const QString& criteria);
    void setFilter(long group);

    QString Source() const { return m_source; }
    void setSource(const QString& source);
    bool Supports(long cursorOptions) const;

    vb::Variant Bookmark() const;
    void setBookmark(const vb::Variant& bookmark);
    CompareEnum CompareBookmarks(const vb::Variant& first, const vb::Variant& second) const;
    long AbsolutePosition();
    void setAbsolutePosition(long position);
    long RecordCount();
    // Reads up to `rows` rows from the current one (or from bookmark `start`), of the named
    // fields or all; result[field][row]. The recordset ends behind the last row read.
    std::vector<std::vector<vb::Variant>> GetRows(long rows = adGetRowsRest,
                                                  const vb::Variant& start = {},
                                                  const QStringList& fields = {});

    CursorLocationEnum CursorLocation() const;
    void setCursorLocation(CursorLocationEnum location);
    CursorTypeEnum CursorType() const noexcept { return m_cursorType; }
    void setCursorType(CursorTypeEnum type);
    LockTypeEnum LockType() const noexcept { return m_lockType; }
    void setLockType(LockTypeEnum type);
    ConnectionPtr ActiveConnection() const { return m_connection; }
    // Null disconnects an open client-side recordset, which keeps its rows.
    void setActiveConnection(const ConnectionPtr& connection);
    ado::Properties& Properties() noexcept { return m_properties; }

    void AddNew();
    void Update();
    void Update(const QStringList& fields, const std::vector<vb::Variant>& values);
    void CancelUpdate();
    void CancelBatch(AffectEnum affectRecords = AffectEnum::adAffectAll);
    void Delete(AffectEnum affectRecords = AffectEnum::adAffectCurrent);
    EditModeEnum EditMode() const;
    long Status() const;
    void Requery(long options = adOptionUnspecified);
    // A second recordset over the same command, whose bookmarks compare with this one's.
    RecordsetPtr Clone(LockTypeEnum lockType = LockTypeEnum::adLockUnspecified);

    // ADO's events that the system handles.
    void setOnMoveComplete(std::function<void(EventReasonEnum, Recordset&)> handler) {
        m_onMoveComplete = std::move(handler);
    }
    void setOnFieldChangeComplete(
        std::function<void(const std::vector<int>& fields, Recordset&)> handler) {
        m_onFieldChangeComplete = std::move(handler);
    }

    // For Field, Command and Connection.
    vb::Variant fieldValue(int column) const;
    // fieldValue written into `into`: where the provider can, a text goes into the storage
    // `into` already holds, so a reader keeping one variant per column does not allocate anew.
    // A walk reads every value of every row through here: the common case stays inline.
    void readFieldValue(int column, vb::Variant& into) const {
        if (!readsStraight()) {
            into = fieldValue(column);
            return;
        }
        try {
            m_rowset->readValue(column, into);
        } catch (const Error& e) {
            providerFailed(e);
        }
    }
    vb::Variant underlyingValue(int column) const;
    void setFieldValue(int column, const vb::Variant& value);
    void attach(std::unique_ptr<ProviderRowset> rowset, const CommandRequest& request,
                const ConnectionPtr& connection);
    // Marks a recordset of OpenSchema, so that Requery and Clone ask for the schema again.
    void setSchemaSource(SchemaEnum schema, std::vector<vb::Variant> restrictions);

private:
    // No edit under way and the provider standing on the current row: a read goes straight to
    // the provider.
    bool readsStraight() const noexcept {
        return m_rowset && m_edit.mode() == EditModeEnum::adEditNone &&
               m_navigator.providerOnCurrent();
    }
    void requireOpen() const;
    void requireCurrent(const QString& source) const;
    void requireMoveAllowed(bool forward) const;
    CommandRequest requestFor(const QString& source, long options) const;
    void runOpen(const CommandRequest& request);
    void afterMove(EventReasonEnum reason);
    void commitPendingEdit();
    bool updatable() const;
    void applyFilter();
    [[noreturn]] void providerFailed(const Error& error) const;
    std::unique_ptr<ProviderRowset> reopen(const CommandRequest& request) const;

    QString m_source;
    ConnectionPtr m_connection;
    bool m_ownsConnection = false;
    CursorTypeEnum m_cursorType = CursorTypeEnum::adOpenForwardOnly;
    LockTypeEnum m_lockType = LockTypeEnum::adLockReadOnly;
    CursorLocationEnum m_cursorLocation = CursorLocationEnum::adUseServer;
    bool m_cursorLocationSet = false;
    ado::Properties m_properties{QStringLiteral("ADODB.Properties")};
    ado::Fields m_fields;
    std::unique_ptr<ProviderRowset> m_rowset;
    CommandRequest m_request;
    std::optional<std::pair<SchemaEnum, std::vector<vb::Variant>>> m_schemaSource;
    mutable RowNavigator m_navigator;
    QString m_filterText;
    FilterExpression m_filter;
    EditBuffer m_edit;
    long m_status = adRecOK;
    std::function<void(EventReasonEnum, Recordset&)> m_onMoveComplete;
    std::function<void(const std::vector<int>&, Recordset&)> m_onFieldChangeComplete;
};

} // namespace ado
