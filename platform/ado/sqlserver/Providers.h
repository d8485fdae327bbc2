#pragma once

#include "platform/ado/Provider.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace ado::sqlserver {

// SQL Server's OLE DB provider on ODBC, under every name a connection string may give it:
// "SQLOLEDB", "SQLOLEDB.1", "SQLNCLI", "SQLNCLI10".
std::vector<std::pair<QString, std::shared_ptr<Provider>>> providers();

} // namespace ado::sqlserver
