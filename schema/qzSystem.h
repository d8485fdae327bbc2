#pragma once

#include <QString>

class nxDb;

// The suite's system schema carried out on a database: every system table of the built-in
// catalogue (schema/catalogue.tsv) in its order of creation, made through nxTd, then every
// relation through nxRel. nxTd and nxRel turn the calls into Jet or SQL Server terms, so the one
// definition serves both. No member stops at a failure: each step is tried and the answer is
// false at the end when any step failed.
class qzSystem {
public:
    // Creates the system table `Table` of the catalogue on the open database `Db`, under `Name`
    // when given, else under its own name. An existing table is opened and completed (nxTd
    // decides what each FldAdd and IdxAdd does to it). A name the catalogue lacks answers false
    // with the reason in nxApp::LastError().
    static bool TdCreate(nxDb& Db, const QString& Table, const QString& Name = {},
                         bool Silent = false) noexcept;

    // Creates the relation `Relation` of the catalogue between two tables of the open database
    // `Db`. A relation that cascades nothing is left to nxRel, which does not make it. A name the
    // catalogue lacks answers false with the reason in nxApp::LastError().
    static bool RelCreate(nxDb& Db, const QString& Relation, bool Silent = false) noexcept;

    // Opens (Flags with DbOpenCreate: creates) the database, drops the foreign keys of an
    // existing one, creates all tables and relations and closes it. True when every step
    // succeeded; what was made before a failure stays.
    static bool DbCreate(const QString& Name, long Flags, bool Silent, const QString& Provider,
                         const QString& Server, long EngineType, const QString& User,
                         const QString& Password) noexcept;
};
