#include "platform/ado/Recordset.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Error.h"

using namespace Qt::StringLiterals;

namespace ado {
namespace {

const QString kSource = u"ADODB.Recordset"_s;

const QString kNoBookmarks =
    u"Current Recordset does not support bookmarks. This may be a limitation of the provider or of the selected cursortype."_s;
const QString kNoUpdates =
    u"Current Recordset does not support updating. This may be a limitation of the provider, or of the selected locktype."_s;

// The recordset properties a caller may set before Open; the provider reads them from the
// request and may report more once the recordset is open.
std::vector<PropertyValue> requestProperties() {
    return {{u"Preserve On Commit"_s, false, true},
            {u"Preserve On Abort"_s, false, true},
            {u"Change Inserted Rows"_s, false, true},
            {u"Update Criteria"_s, vb::Variant(std::int32_t{2}), true},
            {u"Unique Table"_s, QString(), true}};
}

CommandTypeEnum commandTypeOf(long options) {
    constexpr long kTypeBits = 1 | 2 | 4 | 8 | 512;
    if (options == adOptionUnspecified || (options & kTypeBits) == 0) {
        return CommandTypeEnum::adCmdUnknown;
    }
    return static_cast<CommandTypeEnum>(options & kTypeBits);
}

// OLE DB's DB_E_DELETEDROW: the row to change is no longer there. The record is then invalid,
// the one status a caller may try again on.
constexpr auto kDeletedRow = static_cast<HResult>(0x80040E23u);

long statusAfter(const Error& error) {
    if (error.is(HResult::DB_E_INTEGRITYVIOLATION)) {
        return adRecIntegrityViolation;
    }
    if (error.is(HResult::DB_E_CONCURRENCYVIOLATION)) {
        return adRecConcurrencyViolation;
    }
    if (error.is(kDeletedRow)) {
        return adRecInvalid;
    }
    return adRecCanceled;
}

} // namespace

Recordset::Recordset() : m_fields(*this) { m_properties.reset(requestProperties()); }

Recordset::~Recordset() = default;

long Recordset::State() const noexcept { return m_rowset ? adStateOpen : adStateClosed; }

void Recordset::requireOpen() const {
    if (!m_rowset) {
        raise(HResult::adErrObjectClosed, kSource);
    }
}

void Recordset::requireCurrent(const QString& source) const {
    requireOpen();
    if (!m_navigator.hasCurrent()) {
        raise(HResult::adErrNoCurrentRecord, source);
    }
}

[[noreturn]] void Recordset::providerFailed(const Error& error) const {
    if (m_connection) {
        m_connection->providerFailed(error);
    }
    throw error;
}

void Recordset::Open(const QString& source, const ConnectionPtr& activeConnection,
                     CursorTypeEnum cursorType, LockTypeEnum lockType, long options) {
    if (m_rowset) {
        raise(HResult::adErrObjectOpen, kSource);
    }
    if (!activeConnection || activeConnection->State() != adStateOpen) {
        raise(HResult::adErrInvalidConnection, kSource);
    }
    m_source = source;
    m_connection = activeConnection;
    m_ownsConnection = false;
    if (cursorType != CursorTypeEnum::adOpenUnspecified) {
        m_cursorType = cursorType;
    }
    if (lockType != LockTypeEnum::adLockUnspecified) {
        m_lockType = lockType;
    }
    runOpen(requestFor(source, options));
}

void Recordset::Open(const QString& source, const QString& connectionString,
                     CursorTypeEnum cursorType, LockTypeEnum lockType, long options) {
    if (m_rowset) {
        raise(HResult::adErrObjectOpen, kSource);
    }
    auto connection = Connection::create();
    if (m_cursorLocationSet) {
        connection->setCursorLocation(m_cursorLocation);
    }
    connection->Open(connectionString);
    Open(source, connection, cursorType, lockType, options);
    m_ownsConnection = true;
}

void Recordset::Open() { Open(m_source, m_connection); }

CommandRequest Recordset::requestFor(const QString& source, long options) const {
    CommandRequest request;
    request.text = source;
    request.type = commandTypeOf(options);
    request.options = options;
    request.timeoutSeconds = m_connection->CommandTimeout();
    request.cursorLocation = m_cursorLocationSet ? m_cursorLocation : m_connection->CursorLocation();
    request.cursorType = request.cursorLocation == CursorLocationEnum::adUseClient
                             ? CursorTypeEnum::adOpenStatic
                             : m_cursorType;
    request.lockType = m_lockType;
    request.rowsetProperties = m_properties.values();
    return request;
}

void Recordset::runOpen(const CommandRequest& request) {
    CommandResult result;
    try {
        result = m_connection->session().execute(request);
    } catch (const Error& e) {
        providerFailed(e);
    }
    if (result.rowset) {
        attach(std::move(result.rowset), request, m_connection);
    }
}

void Recordset::attach(std::unique_ptr<ProviderRowset> rowset, const CommandRequest& request,
                       const ConnectionPtr& connection) {
    m_rowset = std::move(rowset);
    m_request = request;
    m_connection = connection;
    m_cursorLocation = request.cursorLocation;
    m_lockType = request.lockType;
    const bool scrollable = m_rowset->canSeek() &&
                            m_rowset->cursorType() != CursorTypeEnum::adOpenForwardOnly;
    if (request.cursorLocation == CursorLocationEnum::adUseClient) {
        m_cursorType = scrollable ? CursorTypeEnum::adOpenStatic : CursorTypeEnum::adOpenForwardOnly;
    } else {
        m_cursorType = scrollable ? m_rowset->cursorType() : CursorTypeEnum::adOpenForwardOnly;
    }
    m_properties.reset(request.rowsetProperties.empty() ? requestProperties()
                                                        : request.rowsetProperties);
    for (const auto& p : m_rowset->properties()) {
        m_properties.put(p);
    }
    m_properties.put({u"IRowsetLocate"_s, scrollable, false});
    m_fields.reset(m_rowset->columns());
    m_navigator.attach(m_rowset.get(), scrollable);
    m_edit.clear();
    m_status = adRecOK;
    try {
        applyFilter();
    } catch (const Error&) {
        m_filterText.clear(); // a filter that does not fit the new columns is dropped
        applyFilter();
    }
}

void Recordset::setSchemaSource(SchemaEnum schema, std::vector<vb::Variant> restrictions) {
    m_schemaSource.emplace(schema, std::move(restrictions));
}

std::unique_ptr<ProviderRowset> Recordset::reopen(const CommandRequest& request) const {
    try {
        if (m_schemaSource) {
            return m_connection->session().openSchema(m_schemaSource->first,
                                                      m_schemaSource->second);
        }
        return m_connection->session().execute(request).rowset;
    } catch (const Error& e) {
        providerFailed(e);
    }
}

void Recordset::Close() {
    requireOpen();
    m_edit.clear();
    m_navigator.detach();
    m_fields.clear();
    m_rowset.reset();
    if (m_ownsConnection && m_connection && m_connection->State() == adStateOpen) {
        m_connection->Close();
    }
    m_ownsConnection = false;
}

bool Recordset::Bof() const {
    requireOpen();
    return m_edit.mode() != EditModeEnum::adEditAdd && m_navigator.bof();
}

bool Recordset::Eof() const {
    requireOpen();
    return m_edit.mode() != EditModeEnum::adEditAdd && m_navigator.eof();
}

void Recordset::afterMove(EventReasonEnum reason) {
    m_status = adRecOK;
    if (m_onMoveComplete) {
        m_onMoveComplete(reason, *this);
    }
}

void Recordset::commitPendingEdit() {
    if (m_edit.mode() != EditModeEnum::adEditNone) {
        Update(); // ADO saves an edit in progress before any move
    }
}

void Recordset::requireMoveAllowed(bool forward) const {
    requireOpen();
    if (!forward && !m_navigator.scrollable()) {
        raise(HResult::DB_E_CANTFETCHBACKWARDS, kSource);
    }
    if (forward ? m_navigator.eof() : m_navigator.bof()) {
        raise(HResult::adErrNoCurrentRecord, kSource);
    }
}

void Recordset::MoveNext() {
    requireMoveAllowed(true);
    commitPendingEdit();
    m_navigator.next();
    afterMove(EventReasonEnum::adRsnMoveNext);
}

void Recordset::MovePrevious() {
    requireMoveAllowed(false);
    commitPendingEdit();
    m_navigator.previous();
    afterMove(EventReasonEnum::adRsnMovePrevious);
}

void Recordset::MoveFirst() {
    requireOpen();
    if (m_navigator.bof() && m_navigator.eof()) {
        raise(HResult::adErrNoCurrentRecord, kSource);
    }
    commitPendingEdit();
    m_navigator.first();
    afterMove(EventReasonEnum::adRsnMoveFirst);
}

void Recordset::MoveLast() {
    requireOpen();
    if (!m_navigator.scrollable()) {
        raise(HResult::DB_E_CANTFETCHBACKWARDS, kSource);
    }
    if (m_navigator.bof() && m_navigator.eof()) {
        raise(HResult::adErrNoCurrentRecord, kSource);
    }
    commitPendingEdit();
    m_navigator.last();
    afterMove(EventReasonEnum::adRsnMoveLast);
}

void Recordset::Move(long records, const vb::Variant& start) {
    requireOpen();
    if (!start.isEmpty() && !start.isMissing()) {
        setBookmark(start);
    } else if (records == 0) {
        requireCurrent(kSource);
    }
    if (records < 0 && !m_navigator.scrollable()) {
        raise(HResult::DB_E_CANTFETCHBACKWARDS, kSource);
    }
    if ((records > 0 && m_navigator.eof()) || (records < 0 && m_navigator.bof())) {
        raise(HResult::adErrNoCurrentRecord, kSource);
    }
    commitPendingEdit();
    for (long i = 0; i < records && !m_navigator.eof(); ++i) {
        m_navigator.next();
    }
    for (long i = 0; i > records && !m_navigator.bof(); --i) {
        m_navigator.previous();
    }
    if (records == 0 && !m_navigator.positionProvider()) {
        raise(HResult::adErrNoCurrentRecord, kSource);
    }
    afterMove(EventReasonEnum::adRsnMove);
}

ado::Fields& Recordset::Fields() { return m_fields; }
Field& Recordset::Fields(long index) { return m_fields.Item(index); }
Field& Recordset::Fields(QStringView name) { return m_fields.Item(name); }

vb::Variant Recordset::Filter() const {
    if (m_filterText.isEmpty()) {
        return vb::Variant::fromLong(adFilterNone);
    }
    return m_filterText;
}

void Recordset::applyFilter() {
    if (m_filterText.trimmed().isEmpty()) {
        m_filter = FilterExpression();
        m_navigator.setMatcher(nullptr);
    } else {
        m_filter = FilterExpression::parse(m_filterText, m_rowset->columns());
        m_navigator.setMatcher([this] {
            return m_filter.matches([this](int column) { return m_rowset->value(column); });
        });
    }
    m_navigator.first();
}

void Recordset::setFilter(const QString& criteria) {
    if (!m_rowset) {
        m_filterText = criteria;
        return;
    }
    FilterExpression::parse(criteria, m_rowset->columns()); // refuse a bad text before any change
    commitPendingEdit();
    m_filterText = criteria;
    try {
        applyFilter();
    } catch (const Error& e) {
        providerFailed(e);
    }
    afterMove(EventReasonEnum::adRsnMove);
}

void Recordset::setFilter(long group) {
    if (group != adFilterNone) {
        raise(HResult::adErrInvalidArgument, kSource); // pending-record groups are not used
    }
    setFilter(QString());
}

void Recordset::setSource(const QString& source) {
    if (m_rowset) {
        raise(HResult::adErrObjectOpen, kSource);
    }
    m_source = source;
}

bool Recordset::updatable() const {
    return m_rowset && m_lockType != LockTypeEnum::adLockReadOnly && m_rowset->canUpdate();
}

bool Recordset::Supports(long cursorOptions) const {
    long mask = 0;
    if (m_rowset && m_navigator.scrollable()) {
        mask |= adMovePrevious | adBookmark | adApproxPosition | adHoldRecords | adFind;
    }
    if (updatable()) {
        mask |= adUpdate | adAddNew | adDelete | adResync;
        if (m_lockType == LockTypeEnum::adLockBatchOptimistic) {
            mask |= adUpdateBatch;
        }
    }
    return (mask & cursorOptions) == cursorOptions;
}

vb::Variant Recordset::Bookmark() const {
    requireOpen();
    if (!m_navigator.scrollable()) {
        throw Error(HResult::adErrFeatureNotAvailable, kNoBookmarks, kSource);
    }
    requireCurrent(kSource);
    return m_navigator.bookmark();
}

void Recordset::setBookmark(const vb::Variant& bookmark) {
    requireOpen();
    if (!m_navigator.scrollable()) {
        throw Error(HResult::adErrFeatureNotAvailable, kNoBookmarks, kSource);
    }
    const auto number = bookmark.isNumber() ? bookmark.toDouble() : std::nullopt;
    commitPendingEdit();
    if (!number || !m_navigator.gotoBookmark(*number)) {
        raise(HResult::adErrInvalidArgument, kSource);
    }
    afterMove(EventReasonEnum::adRsnMove);
}

CompareEnum Recordset::CompareBookmarks(const vb::Variant& first, const vb::Variant& second) const {
    requireOpen();
    const auto a = first.isNumber() ? first.toDouble() : std::nullopt;
    const auto b = second.isNumber() ? second.toDouble() : std::nullopt;
    if (!a || !b) {
        raise(HResult::adErrInvalidArgument, kSource);
    }
    if (*a < *b) {
        return CompareEnum::adCompareLessThan;
    }
    return *a > *b ? CompareEnum::adCompareGreaterThan : CompareEnum::adCompareEqual;
}

long Recordset::AbsolutePosition() {
    requireOpen();
    try {
        return m_navigator.absolutePosition();
    } catch (const Error& e) {
        providerFailed(e);
    }
}

void Recordset::setAbsolutePosition(long position) {
    requireOpen();
    commitPendingEdit();
    if (!m_navigator.setAbsolutePosition(position)) {
        raise(HResult::adErrInvalidArgument, kSource);
    }
    afterMove(EventReasonEnum::adRsnMove);
}

long Recordset::RecordCount() {
    requireOpen();
    try {
        return m_navigator.recordCount();
    } catch (const Error& e) {
        providerFailed(e);
    }
}

std::vector<std::vector<vb::Variant>> Recordset::GetRows(long rows, const vb::Variant& start,
                                                         const QStringList& fields) {
    requireOpen();
    if (start.isNumber()) {
        setBookmark(start);
    }
    requireCurrent(kSource);
    std::vector<int> columns;
    if (fields.isEmpty()) {
        for (const auto& f : m_fields) {
            columns.push_back(f->index());
        }
    } else {
        for (const auto& name : fields) {
            columns.push_back(m_fields.Item(name).index());
        }
    }
    std::vector<std::vector<vb::Variant>> result(columns.size());
    for (long read = 0; (rows < 0 || read < rows) && !m_navigator.eof(); ++read) {
        for (std::size_t c = 0; c < columns.size(); ++c) {
            result[c].push_back(fieldValue(columns[c]));
        }
        m_navigator.next();
    }
    afterMove(EventReasonEnum::adRsnMove);
    return result;
}

CursorLocationEnum Recordset::CursorLocation() const { return m_cursorLocation; }

void Recordset::setCursorLocation(CursorLocationEnum location) {
    if (m_rowset) {
        raise(HResult::adErrObjectOpen, kSource);
    }
    m_cursorLocation = location;
    m_cursorLocationSet = true;
}

void Recordset::setCursorType(CursorTypeEnum type) {
    if (m_rowset) {
        raise(HResult::adErrObjectOpen, kSource);
    }
    m_cursorType = type;
}

void Recordset::setLockType(LockTypeEnum type) {
    if (m_rowset) {
        raise(HResult::adErrObjectOpen, kSource);
    }
    m_lockType = type;
}

void Recordset::setActiveConnection(const ConnectionPtr& connection) {
    if (m_rowset) {
        if (connection || m_cursorLocation != CursorLocationEnum::adUseClient) {
            raise(HResult::adErrObjectOpen, kSource);
        }
        // A client-side recordset goes on with its rows; the rowset keeps what it reads alive.
    }
    m_connection = connection;
    m_ownsConnection = false;
}

vb::Variant Recordset::fieldValue(int column) const {
    if (readsStraight()) {
        try {
            return m_rowset->value(column);
        } catch (const Error& e) {
            providerFailed(e);
        }
    }
    requireOpen();
    if (const vb::Variant* pending = m_edit.pending(column)) {
        return *pending;
    }
    if (m_edit.mode() == EditModeEnum::adEditAdd) {
        return vb::Null{};
    }
    return underlyingValue(column);
}

vb::Variant Recordset::underlyingValue(int column) const {
    requireCurrent(u"ADODB.Field"_s);
    if (m_edit.mode() == EditModeEnum::adEditAdd) {
        return vb::Null{};
    }
    try {
        if (!m_navigator.positionProvider()) {
            raise(HResult::adErrNoCurrentRecord, u"ADODB.Field"_s);
        }
        return m_rowset->value(column);
    } catch (const Error& e) {
        providerFailed(e);
    }
}

void Recordset::setFieldValue(int column, const vb::Variant& value) {
    requireOpen();
    if (!updatable()) {
        throw Error(HResult::adErrFeatureNotAvailable, kNoUpdates, kSource);
    }
    if (m_edit.mode() == EditModeEnum::adEditNone) {
        requireCurrent(u"ADODB.Field"_s);
        m_edit.begin(EditModeEnum::adEditInProgress, m_rowset->columns().size());
    }
    m_edit.set(column, value);
    if (m_onFieldChangeComplete) {
        m_onFieldChangeComplete({column}, *this);
    }
}

void Recordset::AddNew() {
    requireOpen();
    if (!Supports(adAddNew)) {
        throw Error(HResult::adErrFeatureNotAvailable, kNoUpdates, kSource);
    }
    commitPendingEdit();
    m_edit.begin(EditModeEnum::adEditAdd, m_rowset->columns().size());
    afterMove(EventReasonEnum::adRsnAddNew);
}

void Recordset::Update() {
    requireOpen();
    const EditModeEnum mode = m_edit.mode();
    if (mode == EditModeEnum::adEditNone) {
        return;
    }
    try {
        if (mode == EditModeEnum::adEditAdd) {
            const RowId id = m_rowset->insertRow(m_edit.changes());
            m_navigator.appendRow(id);
        } else {
            m_rowset->updateRow(m_navigator.currentRowId(), m_edit.changes());
        }
    } catch (const Error& e) {
        m_status = statusAfter(e);
        providerFailed(e); // the edit stays pending, as ADO leaves it
    }
    m_edit.clear();
    m_status = mode == EditModeEnum::adEditAdd ? adRecNew : adRecModified;
}

void Recordset::Update(const QStringList& fields, const std::vector<vb::Variant>& values) {
    if (fields.size() != static_cast<qsizetype>(values.size())) {
        raise(HResult::adErrInvalidArgument, kSource);
    }
    for (qsizetype i = 0; i < fields.size(); ++i) {
        setFieldValue(m_fields.Item(fields[i]).index(), values[static_cast<std::size_t>(i)]);
    }
    Update();
}

void Recordset::CancelUpdate() {
    requireOpen();
    m_edit.clear(); // after AddNew, the record current before it is current again
}

void Recordset::CancelBatch(AffectEnum /*affectRecords*/) { CancelUpdate(); }

void Recordset::Delete(AffectEnum affectRecords) {
    requireOpen();
    if (affectRecords != AffectEnum::adAffectCurrent || !Supports(adDelete)) {
        throw Error(HResult::adErrFeatureNotAvailable, kNoUpdates, kSource);
    }
    requireCurrent(kSource);
    try {
        m_navigator.currentRowDeleting();
        m_rowset->deleteRow(m_navigator.currentRowId());
        m_navigator.currentRowDeleted();
    } catch (const Error& e) {
        m_status = statusAfter(e);
        providerFailed(e);
    }
    m_edit.clear();
}

EditModeEnum Recordset::EditMode() const {
    requireOpen();
    return m_edit.mode();
}

long Recordset::Status() const {
    requireOpen();
    return m_status;
}

void Recordset::Requery(long /*options*/) {
    requireOpen();
    if (m_edit.mode() != EditModeEnum::adEditNone) {
        raise(HResult::adErrIllegalOperation, kSource);
    }
    if (!m_connection || m_connection->State() != adStateOpen) {
        raise(HResult::adErrInvalidConnection, kSource);
    }
    const CommandRequest request = m_request;
    auto rowset = reopen(request);
    m_navigator.detach();
    m_rowset.reset();
    if (rowset) {
        attach(std::move(rowset), request, m_connection);
    }
    afterMove(EventReasonEnum::adRsnRequery);
}

RecordsetPtr Recordset::Clone(LockTypeEnum lockType) {
    requireOpen();
    if (!m_navigator.scrollable()) {
        throw Error(HResult::adErrFeatureNotAvailable, kNoBookmarks, kSource);
    }
    if (!m_connection || m_connection->State() != adStateOpen) {
        raise(HResult::adErrInvalidConnection, kSource);
    }
    CommandRequest request = m_request;
    if (lockType != LockTypeEnum::adLockUnspecified) {
        request.lockType = lockType;
    }
    auto rowset = reopen(request);
    auto clone = std::make_shared<Recordset>();
    clone->m_source = m_source;
    clone->m_schemaSource = m_schemaSource;
    if (rowset) {
        clone->attach(std::move(rowset), request, m_connection);
    }
    return clone;
}

} // namespace ado
