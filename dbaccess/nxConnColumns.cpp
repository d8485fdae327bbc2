#include "dbaccess/ErrorText.h"
#include "dbaccess/nxConn.h"

#include "frame/Edge.h"

#include "platform/ado/Recordset.h"
#include "platform/ado/adox/Catalog.h"

using namespace Qt::StringLiterals;

// Column properties, defaults and constraint names: what the schema rowsets do not tell, asked
// of ADOX on Jet and of the server's catalog views on SQL Server.

namespace {

const vb::Variant kFree;

bool isJet(const ado::Connection& c) {
    return c.Provider().toLower().contains(u"microsoft.jet.oledb"_s);
}

// A yes/no property of a column as ADOX reads it from a Jet file ("AutoIncrement", "Nullable").
bool jetColumnFlag(const ado::ConnectionPtr& c, const QString& table, const QString& column,
                   const QString& property) {
    ado::adox::CatalogPtr catalog = ado::adox::Catalog::create();
    catalog->setActiveConnection(c);
    return dbaccess::boolOf(
        catalog->Tables().Item(table).Columns().Item(column).Properties().Item(property).Value());
}

// A forward-only, read-only recordset on the server, as the catalog queries open it.
ado::RecordsetPtr openForwardOnly(const QString& statement, const ado::ConnectionPtr& c) {
    auto rs = std::make_shared<ado::Recordset>();
    rs->setCursorLocation(ado::CursorLocationEnum::adUseServer);
    rs->setCursorType(ado::CursorTypeEnum::adOpenForwardOnly);
    rs->Open(statement, c, ado::CursorTypeEnum::adOpenUnspecified,
             ado::LockTypeEnum::adLockReadOnly);
    return rs;
}

// Drops one enclosing pair of `open` and `close`; a one-character text that is both fails as
// Mid with a negative length fails.
QString dropPair(const QString& text, QChar open, QChar close) {
    if (!text.startsWith(open) || !text.endsWith(close)) {
        return text;
    }
    if (text.size() < 2) {
        vb::Raise(vb::errors::kInvalidProcedureCall, {},
                  vb::ErrorText(vb::errors::kInvalidProcedureCall));
    }
    return text.mid(1, text.size() - 2);
}

} // namespace

bool nxConn::IsIdentityField(const QString& Table, const QString& Column) const noexcept {
    return IgnoreErrors(false, [&] {
        ado::ConnectionPtr c = CloneConnectionOrThrow();
        if (!c) {
            return false;
        }
        if (isJet(*c)) {
            return jetColumnFlag(c, Table, Column, u"AutoIncrement"_s);
        }
        // On the bound connection, so that a table created in its open transaction counts.
        ado::RecordsetPtr rs =
            m_connection->Execute(u"SELECT COLUMNPROPERTY( OBJECT_ID('"_s + Table + u"'),'"_s +
                                  Column + u"','IsIdentity')"_s);
        const bool identity = dbaccess::boolOf(rs->Fields(0).Value());
        rs->Close();
        return identity;
    });
}

bool nxConn::HasIdentityField(const QString& Table, QString* Column) const noexcept {
    return IgnoreErrors(false, [&] {
        ado::ConnectionPtr c = CloneConnectionOrThrow();
        if (!c) {
            return false;
        }
        if (c->Provider().toLower().contains(u"sqloledb"_s)) {
            ado::RecordsetPtr rs = openForwardOnly(
                u"select t1.TABLE_NAME, c1.COLUMN_NAME "
                u"from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1  "
                u"on t1.TABLE_NAME = c1.TABLE_NAME "
                u"where c1.TABLE_SCHEMA = 'dbo' and "
                u"t1.TABLE_TYPE = 'BASE TABLE' and "
                u"columnproperty(object_id(c1.TABLE_NAME), c1.COLUMN_NAME, 'IsIdentity') = 1 and "
                u"t1.TABLE_NAME like '"_s +
                    Table + u'\'',
                c);
            const bool found = !(rs->Bof() && rs->Eof());
            if (found && Column) {
                *Column = rs->Fields(u"COLUMN_NAME").Value().toString();
            }
            rs->Close();
            CloseConnection(c);
            return found;
        }
        auto catalog = ado::adox::Catalog::create();
        catalog->setActiveConnection(c);
        for (const auto& column : catalog->Tables().Item(Table).Columns()) {
            if (dbaccess::boolOf(column->Properties().Item(u"Autoincrement").Value())) {
                if (Column) {
                    *Column = column->Name();
                }
                return true;
            }
        }
        return false;
    });
}

bool nxConn::CheckNullable(const QString& Table, const QString& Column,
                           bool Nullable) const noexcept {
    return IgnoreErrors(false, [&] {
        ado::ConnectionPtr c = CloneConnectionOrThrow();
        if (!c) {
            return false;
        }
        if (isJet(*c)) {
            return jetColumnFlag(c, Table, Column, u"Nullable"_s) == Nullable;
        }
        ado::RecordsetPtr rs = openForwardOnly(
            u"select t1.TABLE_NAME, c1.COLUMN_NAME "
            u"from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1 "
            u"on t1.TABLE_NAME = c1.TABLE_NAME "
            u"where c1.TABLE_SCHEMA = 'dbo' and t1.TABLE_TYPE = 'BASE TABLE' and "
            u"columnproperty(object_id(c1.TABLE_NAME), c1.COLUMN_NAME, 'AllowsNull') = "_s +
                (Nullable ? u"1"_s : u"0"_s) + u" and t1.TABLE_NAME like '"_s + Table + u'\'',
            c);
        rs->setFilter(u"COLUMN_NAME='"_s + Column + u'\'');
        const bool found = !(rs->Bof() && rs->Eof());
        rs->Close();
        CloseConnection(c);
        return found;
    });
}

QString nxConn::GetDefault(const QString& Table, const QString& Column) const noexcept {
    if (!m_connection) {
        return {};
    }
    return Edge(u"nxConn.GetDefault()", true, QString(), [&] {
        QString text;
        ado::ConnectionPtr c = CloneConnectionOrThrow();
        ado::RecordsetPtr rs =
            c->OpenSchema(ado::SchemaEnum::adSchemaColumns, {kFree, kFree, Table, Column});
        if (!(rs->Bof() && rs->Eof()) &&
            dbaccess::boolOf(rs->Fields(u"COLUMN_HASDEFAULT").Value())) {
            const ado::Field& field = rs->Fields(u"COLUMN_DEFAULT");
            text = field.Value().toString();
            // The server reports a numeric default in two pairs of parentheses, a text in one;
            // no more than two pairs are taken off.
            text = dropPair(dropPair(text, u'(', u')'), u'(', u')');
            const auto type = field.Type();
            if (type == ado::DataTypeEnum::adVarWChar ||
                type == ado::DataTypeEnum::adLongVarWChar || type == ado::DataTypeEnum::adWChar) {
                text = dropPair(text, u'\'', u'\'');
            }
        }
        rs->Close();
        CloseConnection(c);
        return text;
    });
}

QString nxConn::firstValue(const QString& statement, const QString& filter) const {
    ado::ConnectionPtr c = CloneConnectionOrThrow();
    if (!c) {
        return {};
    }
    auto rs = std::make_shared<ado::Recordset>();
    rs->Open(statement, c, ado::CursorTypeEnum::adOpenUnspecified,
             ado::LockTypeEnum::adLockUnspecified, ado::adOptionUnspecified);
    if (!filter.isEmpty()) {
        rs->setFilter(filter);
    }
    QString value;
    if (!(rs->Bof() && rs->Eof())) {
        value = rs->Fields(0).Value().toString();
    }
    rs->Close();
    CloseConnection(c);
    return value;
}

QString nxConn::GetTableFromConstraintName(const QString& Constraint,
                                           const QString& Table) const noexcept {
    return IgnoreErrors(QString(), [&] {
        return firstValue(u"select object_name(id) as TBLNAMES from sysindexes where name = '"_s +
                              Constraint + u'\'',
                          Table.isEmpty() ? QString() : u"TBLNAMES like '"_s + Table + u'\'');
    });
}

QString nxConn::GetTableFromDefVal(const QString& Default) const noexcept {
    return IgnoreErrors(QString(), [&] {
        return firstValue(
            u"select name from sysobjects where id=(select parent_obj from sysobjects where name = '"_s +
            Default + u"')"_s);
    });
}

QString nxConn::GetConstraintName(const QString& Table, const QString& Column) const noexcept {
    return IgnoreErrors(QString(), [&] {
        // SQL Server 2000 keeps the default's id in syscolumns; later versions in sys.columns.
        if (DBMSVersion() == 8) {
            return firstValue(u"select object_name(cdefault) from syscolumns "
                              u"where id = object_id('"_s +
                              Table + u"') and name = '"_s + Column + u'\'');
        }
        return firstValue(u"select object_name(default_object_id) from sys.columns "
                          u"where object_id = object_id('"_s +
                          Table + u"') and name = '"_s + Column + u'\'');
    });
}
