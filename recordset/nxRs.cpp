#include "recordset/nxRs.h"

#include "recordset/RsTrap.h"

#include "dbaccess/nxConn.h"
#include "dbaccess/nxDb.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"

#include "platform/ado/adox/Catalog.h"
#include "platform/vb/Err.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t kNoSuchTable = 0x80040E37;

QString withoutBrackets(QString name) {
    name.remove(u'[');
    name.remove(u']');
    return name;
}

// Sets a property of a recordset before it opens; one the provider does not know is added, as
// ADO passes such properties on to the provider.
void setProperty(ado::Recordset& r, const QString& name, const vb::Variant& value) {
    IgnoreErrors([&] {
        if (ado::Property* p = r.Properties().find(name)) {
            p->setValue(value);
        } else {
            r.Properties().put({name, value, true});
        }
    });
}

} // namespace

nxRs::nxRs() = default;

nxRs::~nxRs() {
    RsClose();
}

void nxRs::WriteOnUpdate(bool value) noexcept {
    if (!m_isEditing) {
        m_writeOnUpdate = value;
    }
}

void nxRs::PropertySet(const QString& name, const vb::Variant& value) noexcept {
    if (m_rs) {
        setProperty(*m_rs, name, value);
    }
}

vb::Variant nxRs::PropertyGet(const QString& name) const noexcept {
    return IgnoreErrors(vb::Variant(), [&] {
        const ado::Property* p = m_rs ? m_rs->Properties().find(name) : nullptr;
        return p ? p->Value() : vb::Variant();
    });
}

bool nxRs::RsOpen(const QString& Statement, long CursorType, long LockType, bool Silent,
                  long CursorLocation) noexcept {
    if (!nxApp::IsInit() || m_db == nullptr) {
        return false;
    }
    RsClose();
    if (!m_db->IsOpened()) {
        return false;
    }
    QString sql = rs::TrimBlanks(Statement);
    try {
        auto r = std::make_shared<ado::Recordset>();
        // The recordset has to survive the transactions of the copy.
        setProperty(*r, u"Preserve On Commit"_s, true);
        setProperty(*r, u"Preserve On Abort"_s, true);
        if (LockType != 1 && CursorType != 0) {
            setProperty(*r, u"Change Inserted Rows"_s, true);
        }
        // A table name that begins with a digit needs its delimiters on the server.
        if (m_db->DbType() != 0 && !sql.isEmpty() && sql.front().isDigit()) {
            sql = m_db->FldStartDel() + sql + m_db->FldEndDel();
        }
        r->setCursorLocation(static_cast<ado::CursorLocationEnum>(CursorLocation));
        if (CursorLocation == 3) {
            setProperty(*r, u"Update Criteria"_s, 0); // updates find their row by key alone
        }
        // A connection of its own, so that open recordsets don't block one another.
        m_cn = m_db->ConnUtils() ? m_db->ConnUtils()->CloneConnection() : nullptr;
        r->Open(sql, m_cn, static_cast<ado::CursorTypeEnum>(CursorType),
                static_cast<ado::LockTypeEnum>(LockType), ado::adOptionUnspecified);
        return attach(r);
    } catch (...) {
        frame::LoadAmbientError();
        vb::ErrRecord& err = vb::Err();
        if (static_cast<std::uint32_t>(err.Number) == kNoSuchTable) {
            err.Description = sql.startsWith(u"SELECT "_s, Qt::CaseInsensitive)
                                  ? u"Impossibile eseguire la query."_s
                                  : u"Impossibile aprire la tabella."_s;
        }
        nxApp::CompleteErr(sql);
        nxApp::ErrorBox(u"nxRs.RsOpen()"_s, Silent, false);
        m_rs.reset();
        if (m_cn && m_db->ConnUtils()) {
            m_db->ConnUtils()->CloseConnection(m_cn);
        }
        m_cn.reset();
        return false;
    }
}

bool nxRs::RsAttach(const ado::RecordsetPtr& recordset) noexcept {
    if (!nxApp::IsInit() || !recordset) {
        return false;
    }
    return IgnoreErrors(false, [&] { return attach(recordset); });
}

bool nxRs::attach(const ado::RecordsetPtr& recordset) {
    if (m_rs && m_rs != recordset) {
        RsClose();
    }
    if (recordset->State() != ado::adStateOpen) {
        m_rs.reset();
        return false;
    }
    m_rs = recordset;
    if (!m_cn) {
        m_cn = recordset->ActiveConnection();
    }
    nxConn* conn = m_db != nullptr ? m_db->ConnUtils().get() : nullptr;
    rs::SplitSource(
        m_rs->Source(),
        [conn](const QString& name) { return conn != nullptr && conn->TableExists(name); },
        m_parts);

    m_table.reset();
    IgnoreErrors([&] {
        const QString table = withoutBrackets(m_parts.name);
        if (conn != nullptr && m_db->Db() && conn->TableExists(table)) {
            m_table = m_db->Db()->Tables().ItemPtr(table);
        }
    });
    m_index.clear();
    m_isEditing = m_isNewRec = false;
    m_isOpened = true;
    m_lastGood = vb::Variant();
    readFields();
    readKey();
    m_rs->setOnMoveComplete(
        [this](ado::EventReasonEnum reason, ado::Recordset&) { onMoveComplete(reason); });
    m_rs->setOnFieldChangeComplete(
        [this](const std::vector<int>& fields, ado::Recordset&) { onFieldChangeComplete(fields); });
    noteCursor();
    MoveCurrent(true);
    return true;
}

// What the cursor can do stays as it is until the recordset opens again; a walk asks for every
// record and every field, so it is noted once here.
void nxRs::noteCursor() {
    m_underlyingOnJet = m_db != nullptr && m_db->DbType() == 0 &&
                        m_rs->LockType() != ado::LockTypeEnum::adLockReadOnly &&
                        m_rs->CursorType() == ado::CursorTypeEnum::adOpenKeyset;
    m_hasBookmarks = m_rs->Supports(ado::adBookmark);
    m_hasPosition = m_rs->Supports(ado::adApproxPosition) ||
                    m_rs->Properties().find(u"IRowsetLocate"_s) != nullptr;
    m_keepReads = m_rs->LockType() == ado::LockTypeEnum::adLockReadOnly;
    forgetReads();
}

void nxRs::forgetReads() noexcept {
    // Every move comes here: the flags are cleared where they stand.
    m_read.resize(m_values.size());
    std::fill(m_read.begin(), m_read.end(), 0);
    m_posHere = m_validHere = false;
}

void nxRs::readFields() {
    const int count = static_cast<int>(m_rs->Fields().Count());
    m_values.assign(static_cast<std::size_t>(count), vb::Variant());
    forgetReads();
    m_stale = true;
    m_isKey.assign(static_cast<std::size_t>(count), false);
    m_idField = -1;
    m_idSetByHand = false;
    for (int i = 0; i < count; ++i) {
        const vb::Variant autoIncrement = FldProp(i, u"IsAutoincrement"_s);
        if (autoIncrement.toBool().value_or(false)) {
            m_idField = i;
        }
    }
    int byName = -1;
    if (m_idField < 0 && FldExist(m_defIdField, &byName)) {
        m_idField = byName;
    }
}

void nxRs::readKey() {
    m_primaryIndex.clear();
    std::shared_ptr<ado::adox::Table> table = m_table;
    if (!table) {
        const QString unique = PropertyGet(u"Unique Table"_s).toString();
        if (!unique.isEmpty() && m_db != nullptr && m_db->Db()) {
            table = IgnoreErrors(std::shared_ptr<ado::adox::Table>(),
                                 [&] { return m_db->Db()->Tables().ItemPtr(unique); });
        }
    }
    if (!table) {
        return;
    }
    IgnoreErrors([&] {
        for (const auto& index : table->Indexes()) {
            if (index->PrimaryKey()) {
                m_primaryIndex = index->Name();
                for (const auto& column : index->Columns()) {
                    int i = -1;
                    if (FldExist(column->Name(), &i)) {
                        m_isKey[static_cast<std::size_t>(i)] = true;
                    }
                }
                break;
            }
        }
    });
}

void nxRs::RsClose() noexcept {
    if (m_rs) {
        IgnoreErrors([&] {
            m_rs->setOnMoveComplete({});
            m_rs->setOnFieldChangeComplete({});
            if (m_rs->State() != ado::adStateClosed) {
                m_rs->Close();
            }
        });
    }
    if (m_cn && m_db != nullptr && m_db->ConnUtils()) {
        m_db->ConnUtils()->CloseConnection(m_cn);
    }
    m_cn.reset();
    m_rs.reset();
    m_table.reset();
    // Identity values given by hand: the server's counter has to move past them.
    if (m_idSetByHand && m_db != nullptr) {
        m_db->UpdateAutoIncrement(m_parts.name, 0, true);
    }
    m_idSetByHand = false;
    m_isOpened = false;
    m_isEditing = m_isNewRec = false;
    m_keepReads = false;
    forgetReads();
}

bool nxRs::Requery(bool Silent) noexcept {
    if (!m_isOpened || m_disconnected || !m_rs) {
        return false;
    }
    Update(true);
    const ado::CursorTypeEnum cursor = m_rs->CursorType();
    const ado::LockTypeEnum lock = m_rs->LockType();
    IgnoreErrors([&] { m_rs->Close(); });
    m_isOpened = false;
    forgetReads();
    const QString sql = rs::JoinSource(m_parts);
    nxApp::DoEvents();
    try {
        m_rs->Open(sql, m_cn, cursor, lock, ado::adOptionUnspecified);
        m_isOpened = m_rs->State() != ado::adStateClosed;
        noteCursor();
        MoveCurrent(true);
    } catch (...) {
        frame::LoadAmbientError();
        nxApp::ErrorBox(QString(), Silent, false);
    }
    m_isOpened = IgnoreErrors(false, [&] { return m_rs->State() != ado::adStateClosed; });
    return m_isOpened;
}

QString nxRs::Where() const {
    return m_isOpened && !m_disconnected ? m_parts.where : QString();
}

QString nxRs::OrderBy() const {
    return m_isOpened && !m_disconnected ? m_parts.order : QString();
}

bool nxRs::SetWhere(const QString& Text, bool Silent) noexcept {
    if (!m_isOpened || m_disconnected) {
        return false;
    }
    m_parts.where = Text;
    return Requery(Silent);
}

bool nxRs::SetOrderBy(const QString& Text, bool Silent) noexcept {
    if (!m_isOpened || m_disconnected) {
        return false;
    }
    m_parts.order = Text;
    return Requery(Silent);
}

bool nxRs::runPrivateQuery(const QString& sql, const QString& column, std::int32_t& result) {
    auto r = std::make_shared<ado::Recordset>();
    r->setCursorLocation(ado::CursorLocationEnum::adUseClient);
    r->Open(sql, m_db->cn(), ado::CursorTypeEnum::adOpenStatic, ado::LockTypeEnum::adLockReadOnly,
            ado::adOptionUnspecified);
    const std::optional<std::int32_t> value = r->Fields(column).Value().toLong();
    r->Close();
    result = value.value_or(0);
    return value.has_value();
}

// Runs each time: the record count of a cursor is never used, so the answer is exact with any.
std::int32_t nxRs::CountQuery(const QString& Extra) noexcept {
    if (!m_isOpened || m_db == nullptr) {
        return 0;
    }
    return IgnoreErrors(0, [&] {
        std::int32_t n = 0;
        runPrivateQuery(rs::CountQueryText(m_parts, Extra), u"RecNum"_s, n);
        return n;
    });
}

// On an empty table the value is null, which gives 0.
std::int32_t nxRs::MaxQuery(const QString& Field, bool Min) noexcept {
    if (!m_isOpened || m_db == nullptr) {
        return 0;
    }
    return IgnoreErrors(0, [&] {
        std::int32_t n = 0;
        runPrivateQuery(rs::MaxQueryText(m_parts, m_db->NormalizeFld(Field), Min), u"Num"_s, n);
        return n;
    });
}

bool nxRs::SetIndex(const QString& Name, bool Silent) noexcept {
    if (!m_table || !m_isOpened) {
        return false;
    }
    return Edge(u"nxRs.SetIndex()", Silent, false, [&] {
        QString name = Name;
        // Tables that came through a migration carry their primary key as CUR_<table><name>.
        const QString migrated = u"CUR_"_s + m_parts.name + Name;
        if (m_primaryIndex.compare(migrated, Qt::CaseInsensitive) == 0) {
            name = migrated;
        }
        if (name == m_index) {
            return true;
        }
        const auto index = m_table->Indexes().find(name);
        if (!index) {
            return false;
        }
        if (m_disconnected) {
            PropertySet(u"Index"_s, name);
        } else {
            std::vector<rs::IndexColumn> columns;
            for (const auto& column : index->Columns()) {
                columns.push_back(
                    {column->Name(), column->SortOrder() == ado::SortOrderEnum::adSortDescending});
            }
            if (!SetOrderBy(rs::IndexOrderText(columns), Silent)) {
                return false;
            }
        }
        m_index = name;
        return true;
    });
}

QStringList nxRs::GetIndexFields(const QString& IndexName) const noexcept {
    if (!m_table) {
        return {};
    }
    return IgnoreErrors(QStringList(), [&] {
        QStringList names;
        for (const auto& column : m_table->Indexes().Item(IndexName).Columns()) {
            names.append(column->Name());
        }
        return names;
    });
}

QStringList nxRs::GetIndexesName() const noexcept {
    if (!m_table) {
        return {};
    }
    return IgnoreErrors(QStringList(), [&] {
        QStringList names;
        for (const auto& index : m_table->Indexes()) {
            names.append(index->Name());
        }
        return names;
    });
}

QStringList nxRs::PrimaryFields() const {
    QStringList names;
    for (int i = 0; i < FldCount(); ++i) {
        if (m_isKey[static_cast<std::size_t>(i)]) {
            names.append(FldName(i));
        }
    }
    return names;
}
