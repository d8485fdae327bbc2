#pragma once

#include <QString>

#include <functional>

class nxDb;
class nxLog;

// Points the suite at the new server database: rewrites config.ini beside the source (keeping
// the old file as ".old") and renames the source, so that nobody goes on using it by mistake.
namespace engine {

// What the suite needs to reach the new database.
struct ServerSettings {
    QString serverName;
    QString databaseName;
    QString description;
    QString username; // empty: integrated security
    QString password;
};

// The description of the new database, on the destination handle: when QZSYSTEM's DESCRIZIONE
// is null or empty it becomes `dbDesc` ("update QZSYSTEM set DESCRIZIONE='<dbDesc>'", the text
// not doubled for apostrophes, so an apostrophe makes the server refuse it); a description copied
// from the source stays. False, with the reason in nxApp::LastError, when the read or the update
// failed: the run then ends without writing config.ini.
bool StoreDescription(nxDb& dest, const QString& dbDesc) noexcept;

class ConfigurationSwitch {
public:
    // Turns a plain value into what stands in the file; may raise. By default Encrypt_Text
    // under the suite's password, in Base64.
    using Cipher = std::function<QString(const QString& plain)>;

    // `log` receives the "Creato" line and failures; may be null.
    explicit ConfigurationSwitch(nxLog* log, Cipher cipher = {});

    // Writes the seven keys of section Database of config.ini in the folder of `dbSrc`, in
    // order. A failure is told in a box and in the log and goes no further: keys written before
    // it stay written, and the conversion goes on.
    void SaveConfiguration(const QString& dbSrc, const ServerSettings& settings) const;

    // "Archivio.mdb" becomes "Archivio.mdb.old". False, after a box, when it cannot be renamed.
    bool RenameSource(const QString& dbSrc) const;

private:
    bool keepOldFile(const QString& ini) const;
    void writeKeys(const QString& ini, const ServerSettings& settings) const;

    nxLog* m_log;
    Cipher m_cipher;
};

} // namespace engine
