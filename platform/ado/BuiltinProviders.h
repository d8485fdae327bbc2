#pragma once

#include "platform/ado/Provider.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace ado {

// The providers this build carries, with every name each answers to. The SQL Server provider
// joins when its folder is built (its sources define UPSIZER_ADO_SQLSERVER and provide
// ado::sqlserver::providers() in platform/ado/sqlserver/Providers.h).
std::vector<std::pair<QString, std::shared_ptr<Provider>>> builtinProviders();

} // namespace ado
