#include "platform/ado/sqlserver/AdoErrors.h"

namespace ado::sqlserver {

Error toAdoError(const odbc::Failure& failure) {
    const QString source = QString::fromUtf16(kErrorSource);
    Error error(failure.hresult(), failure.description(), source, failure.sqlState(),
                failure.nativeError());
    // The thrown error is the first error record (the cause); the related ones are the rest.
    const auto& records = failure.records();
    std::size_t cause = records.size();
    for (std::size_t i = 0; i < records.size() && cause == records.size(); ++i) {
        if (odbc::isError(records[i])) {
            cause = i;
        }
    }
    if (cause == records.size() && !records.empty()) {
        cause = 0;
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (i == cause) {
            continue;
        }
        const odbc::DiagRecord& record = records[i];
        error.addRelated(Error(odbc::hresultFor(record, failure.phase()),
                               odbc::serverText(record.message), source, record.sqlState,
                               record.nativeError));
    }
    return error;
}

} // namespace ado::sqlserver
