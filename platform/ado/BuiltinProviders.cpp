#include "platform/ado/BuiltinProviders.h"

#ifdef UPSIZER_ADO_JET
#include "platform/ado/jet/JetProvider.h"
#endif
#ifdef UPSIZER_ADO_SQLSERVER
#include "platform/ado/sqlserver/Providers.h"
#endif

namespace ado {

std::vector<std::pair<QString, std::shared_ptr<Provider>>> builtinProviders() {
    std::vector<std::pair<QString, std::shared_ptr<Provider>>> result;
#ifdef UPSIZER_ADO_JET
    result.emplace_back(QStringLiteral("Microsoft.Jet.OLEDB.4.0"),
                        std::make_shared<jet::JetProvider>());
#endif
#ifdef UPSIZER_ADO_SQLSERVER
    for (auto& entry : sqlserver::providers()) {
        result.push_back(std::move(entry));
    }
#endif
    return result;
}

} // namespace ado
