#pragma once

#include "platform/ado/Error.h"
#include "platform/ado/sqlserver/odbc/Diagnostics.h"

#include <QString>

namespace ado::sqlserver {

// The source every error of this provider names, as ADO shows it.
inline constexpr auto kErrorSource = u"Microsoft OLE DB Provider for SQL Server";

// The first error record becomes the thrown error; every record, in order, goes with it, so
// that Connection::Errors lists them all.
Error toAdoError(const odbc::Failure& failure);

// Runs body, turning ODBC failures into ado::Error.
template <class Body> decltype(auto) translated(Body&& body) {
    try {
        return body();
    } catch (const odbc::Failure& f) {
        throw toAdoError(f);
    }
}

} // namespace ado::sqlserver
