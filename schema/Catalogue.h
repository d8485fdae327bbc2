#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

// The suite's system tables and relations as data (schema/catalogue.tsv, compiled in), read once
// into plain values that carry exactly what nxTd::FldAdd, nxTd::IdxAdd and nxRel take.
namespace schema {

// One column, as nxTd::FldAdd(Name, Type, Size, Attrs, Default) takes it.
struct FieldDef {
    QString name;
    int type = 0; // ADO type number; 0 for a date column, see dateType
    bool dateType =
        false;           // the type is nxDb.DateType at creation time: 7 on Jet, 135 on the server
    long size = 0;       // characters of a 202 column, 0 for the rest
    long attributes = 0; // 1 required, 2 auto-increment, 4 optional, 32 zero length allowed
    bool hasDefault = false;
    QString defaultValue; // in Jet's notation, exactly as written: 0, "", "Agenzia delle Entrate"

    // The type to hand to FldAdd on a database whose date type is dbDateType.
    int adoType(int dbDateType) const { return dateType ? dbDateType : type; }
};

// One index, as nxTd::IdxAdd(Name, Fields, Flags) takes it.
struct IndexDef {
    QString name;
    QString fields; // "+ID_Anag;+ID_TipoDoc": a sign and a column name per item, joined by ";"
    long flags = 0; // 1 primary key, 4 unique; 2 is declared on some indexes and not read
};

struct TableDef {
    QString name;
    QList<FieldDef> fields;  // in the order of the finished table's columns
    QList<IndexDef> indexes; // in the order they are made

    const FieldDef* field(QStringView fieldName) const; // by name, without regard to case
};

// One foreign key: nxRel::RelOpen, then nxRel::FldAdd for each pair of fields, then RelClose.
struct RelationDef {
    QString name;
    QString table;        // the child, which holds the key
    QStringList fields;   // pairwise with relatedFields
    QString relatedTable; // the parent
    QStringList relatedFields;
    long deleteRule = 0; // ADOX RuleEnum: 0 adRINone, 1 adRICascade
    long updateRule = 0;
};

class Catalogue {
public:
    // The catalogue compiled into the program, read at the first call and shared afterwards.
    // When it cannot be read, the answer is invalid and error() says why; that is a build fault.
    static const Catalogue& builtIn();

    // Reads catalogue text. A fault makes the whole result invalid, with the error
    // "<fileName>:<line>: <reason>", or "<fileName>: <reason>" for a fault of the whole text.
    static Catalogue parse(QStringView text,
                           const QString& fileName = QStringLiteral("catalogue.tsv"));

    bool isValid() const { return m_error.isEmpty(); }
    const QString& error() const { return m_error; }

    const QList<TableDef>& tables() const { return m_tables; } // in the order of creation
    const TableDef* table(QStringView name) const;             // by name, without regard to case
    const QList<RelationDef>& relations() const { return m_relations; } // in the order of creation
    qsizetype fieldCount() const;
    qsizetype indexCount() const;

private:
    friend class CatalogueReader;

    QList<TableDef> m_tables;
    QList<RelationDef> m_relations;
    QHash<QString, qsizetype> m_byName; // lower-cased table name -> position in m_tables
    QString m_error;
};

} // namespace schema
