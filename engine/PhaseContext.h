#pragma once

class DbImportEvents;
class nxConn;
class nxDb;
class nxLog;
class nxStringBuilder;

namespace engine {

// What the phases of one conversion share with the run that owns them. Every member is owned by
// DbImport and outlives the phase objects, which keep these references only.
struct PhaseContext {
    nxDb& src;           // the Jet source handle
    nxDb& dest;          // the server database handle, open from the creation of the database
    nxConn& srcConn;     // bound to a clone of the source connection
    nxConn& destConn;    // bound to a clone of the destination connection
    nxConn& masterConn;  // bound to the master connection: the server's keywords and literals
    nxStringBuilder& sb1; // table texts and inserts
    nxStringBuilder& sb2; // column definitions
    DbImportEvents* events; // may be null
    nxLog& log;          // ConversionLog.txt
};

} // namespace engine
