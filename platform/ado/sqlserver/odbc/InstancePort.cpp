#include "platform/ado/sqlserver/odbc/InstancePort.h"

#include "platform/ado/sqlserver/odbc/Diagnostics.h"
#include "platform/ado/sqlserver/odbc/HResults.h"
#include "platform/sqldmo/Error.h"
#include "platform/sqldmo/InstancePort.h"

using namespace Qt::StringLiterals;

namespace odbc {

int resolveInstancePort(const QString& host, const QString& instance, int timeoutMs,
                        std::uint16_t browserPort) {
    try {
        return sqldmo::resolveInstancePort(host, instance, timeoutMs, browserPort);
    } catch (const sqldmo::Error& e) {
        // A connection that cannot find its server fails as any other network failure does.
        // The look-up names the instance itself; it is not named twice.
        const QString prefix = u"SQL Server instance '%1\\%2': "_s.arg(host, instance);
        const QString& text = e.description();
        throw Failure(hr::E_FAIL_, text.startsWith(prefix) ? text : prefix + text);
    }
}

} // namespace odbc
