#pragma once

#include "platform/ado/Provider.h"

namespace ado::jet {

// "Microsoft.Jet.OLEDB.4.0" over platform/jetfile: reads Jet 4 .mdb files, never writes them.
// Opens by "Data Source=", checks "Jet OLEDB:Database Password=" as Jet does, and honours the
// share modes between the connections of this process. Tables open as streaming rowsets; the
// SQL the system sends to Jet is answered by scanning (JetSql.h); the schema rowsets TABLES,
// COLUMNS, INDEXES, PRIMARY_KEYS and FOREIGN_KEYS and the ADOX catalog are read from the file.
class JetProvider : public Provider {
public:
    QString name() const override { return QStringLiteral("Microsoft.Jet.OLEDB.4.0"); }
    std::unique_ptr<ProviderSession> open(const OpenRequest& request) override;
    void createDatabase(const ConnectionString& connectionString) override;
};

} // namespace ado::jet
