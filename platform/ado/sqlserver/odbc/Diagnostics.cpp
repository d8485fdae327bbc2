#include "platform/ado/sqlserver/odbc/Diagnostics.h"

#include "platform/ado/sqlserver/odbc/HResults.h"

#include <array>

using namespace Qt::StringLiterals;

namespace odbc {
namespace {

// No driver sends this many records for one call; the bound keeps a broken driver from
// looping forever.
constexpr SQLSMALLINT kMaxRecords = 512;

struct NativeRule {
    SQLINTEGER native;
    std::int32_t hresult;
};

// Server (and FreeTDS client) message numbers whose ADO error is known.
constexpr std::array kByNative{
    NativeRule{18456, hr::E_FAIL_},                  // login failed
    NativeRule{4060, hr::E_FAIL_},                   // cannot open the database of the login
    NativeRule{18452, hr::E_FAIL_},                  // untrusted domain login
    NativeRule{20009, hr::E_FAIL_},                  // unable to connect
    NativeRule{20002, hr::E_FAIL_},                  // connection failed
    NativeRule{20214, hr::E_FAIL_},                  // bad driver configuration
    NativeRule{17, hr::E_FAIL_},                     // server does not exist
    NativeRule{2627, hr::DB_E_INTEGRITYVIOLATION},   // duplicate key (constraint)
    NativeRule{2601, hr::DB_E_INTEGRITYVIOLATION},   // duplicate key (unique index)
    NativeRule{547, hr::DB_E_INTEGRITYVIOLATION},    // foreign key or check constraint
    NativeRule{515, hr::DB_E_INTEGRITYVIOLATION},    // NULL into a NOT NULL column
    NativeRule{208, hr::DB_E_NOTABLE},               // invalid object name
    NativeRule{245, hr::DB_E_CANTCONVERTVALUE},      // conversion failed
    NativeRule{8114, hr::DB_E_CANTCONVERTVALUE},     // conversion failed
    NativeRule{8152, hr::DB_E_DATAOVERFLOW},         // string or binary data truncated
    NativeRule{20003, hr::DB_E_ABORTLIMITREACHED},   // query time-out
    NativeRule{1785, hr::DB_E_ERRORSINCOMMAND},      // refused cascade path
};

struct StateRule {
    const char16_t* prefix;
    std::int32_t hresult;
};

constexpr std::array kByState{
    StateRule{u"HYT00", hr::DB_E_ABORTLIMITREACHED}, StateRule{u"HYT01", hr::E_FAIL_},
    StateRule{u"42S02", hr::DB_E_NOTABLE},           StateRule{u"22001", hr::DB_E_DATAOVERFLOW},
    StateRule{u"22018", hr::DB_E_CANTCONVERTVALUE},  StateRule{u"23", hr::DB_E_INTEGRITYVIOLATION},
    StateRule{u"08", hr::E_FAIL_},                   StateRule{u"28", hr::E_FAIL_},
    StateRule{u"IM", hr::E_FAIL_},
};

} // namespace

std::vector<DiagRecord> readDiagnostics(Api& api, SQLSMALLINT handleType, SQLHANDLE handle) {
    std::vector<DiagRecord> records;
    if (handle == SQL_NULL_HANDLE) {
        return records;
    }
    for (SQLSMALLINT number = 1; number <= kMaxRecords; ++number) {
        DiagRecord record;
        if (!succeeded(api.getDiagRec(handleType, handle, number, &record))) {
            break;
        }
        records.push_back(std::move(record));
    }
    return records;
}

QString serverText(const QString& message) {
    static constexpr QStringView kServerTag = u"[SQL Server]";
    const qsizetype at = message.indexOf(kServerTag);
    if (!message.startsWith(u'[') || at < 0) {
        return message;
    }
    // Only a prefix made of bracketed parts ends at the tag; a "[SQL Server]" later in the
    // text belongs to the message itself.
    for (qsizetype i = 0; i < at;) {
        if (message.at(i) != u'[') {
            return message;
        }
        const qsizetype close = message.indexOf(u']', i);
        if (close < 0 || close > at) {
            return message;
        }
        i = close + 1;
    }
    return message.mid(at + kServerTag.size());
}

bool isError(const DiagRecord& record) { return !record.sqlState.startsWith(u"01"_s); }

std::int32_t hresultFor(const DiagRecord& record, Phase phase) {
    // Whatever stops a login (no server, time-out, refused credentials, missing database) is
    // an unspecified failure to ADO.
    if (phase == Phase::Connect) {
        return hr::E_FAIL_;
    }
    for (const NativeRule& rule : kByNative) {
        if (rule.native == record.nativeError) {
            return rule.hresult;
        }
    }
    for (const StateRule& rule : kByState) {
        if (record.sqlState.startsWith(QStringView(rule.prefix))) {
            return rule.hresult;
        }
    }
    return phase == Phase::Connect ? hr::E_FAIL_ : hr::DB_E_ERRORSINCOMMAND;
}

Failure::Failure(std::vector<DiagRecord> records, Phase phase)
    : m_records(std::move(records)), m_phase(phase) {
    const DiagRecord* cause = nullptr;
    for (const DiagRecord& record : m_records) {
        if (isError(record)) {
            cause = &record;
            break;
        }
    }
    if (cause == nullptr && !m_records.empty()) {
        cause = &m_records.front();
    }
    if (cause != nullptr) {
        m_hresult = hresultFor(*cause, phase);
        m_description = serverText(cause->message);
        m_sqlState = cause->sqlState;
        m_nativeError = cause->nativeError;
    } else {
        // The driver failed the call and said nothing (FreeTDS does this for a stray '?').
        m_hresult = phase == Phase::Connect ? hr::E_FAIL_ : hr::DB_E_ERRORSINCOMMAND;
        m_description = u"The ODBC driver reported a failure without a diagnostic record."_s;
    }
    m_what = m_description.toUtf8();
}

Failure::Failure(std::int32_t hresult, const QString& description)
    : m_phase(Phase::Command), m_hresult(hresult), m_description(description),
      m_what(description.toUtf8()) {}

void check(Api& api, SQLRETURN rc, SQLSMALLINT handleType, SQLHANDLE handle, Phase phase) {
    if (!succeeded(rc)) {
        throw Failure(readDiagnostics(api, handleType, handle), phase);
    }
}

} // namespace odbc
