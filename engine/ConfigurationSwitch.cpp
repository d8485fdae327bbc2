#include "engine/ConfigurationSwitch.h"

#include "engine/ConfigCipher.h"
#include "frame/nxApp.h"
#include "frame/nxIni.h"
#include "frame/nxLog.h"
#include "frame/nxSys.h"

#include "dbaccess/nxDb.h"
#include "frame/Edge.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Enums.h"
#include "platform/ado/Field.h"
#include "platform/ado/Recordset.h"

#include "platform/vb/Err.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace engine {

namespace {

const QString kSection = u"Database"_s;

// The style of the box after a failed copy is the text "4" joined to "48", 448: it has an OK
// button only, so the answer is never Yes and the old configuration stays in place.
const long kCopyFailedStyle = (u"4"_s + u"48"_s).toLong();

struct Failure {
    long number = 0;
    QString description;
};

} // namespace

bool StoreDescription(nxDb& dest, const QString& dbDesc) noexcept {
    try {
        auto list = std::make_shared<ado::Recordset>();
        list->Open(u"select DESCRIZIONE from QZSYSTEM"_s, dest.cn(),
                   ado::CursorTypeEnum::adOpenForwardOnly, ado::LockTypeEnum::adLockReadOnly);
        const vb::Variant current = list->Fields(0).Value();
        list->Close();
        if (!current.isNull() && !current.toString().isEmpty()) {
            return true; // the description copied from the source stays
        }
        // Not doubled: an apostrophe in the description makes the server refuse the update.
        return dest.Execute(u"update QZSYSTEM set DESCRIZIONE='"_s + dbDesc + u"'"_s, true,
                            ado::adExecuteNoRecords);
    } catch (...) {
        frame::LoadAmbientError();
        nxApp::FillError();
        return false;
    }
}

ConfigurationSwitch::ConfigurationSwitch(nxLog* log, Cipher cipher)
    : m_log(log), m_cipher(std::move(cipher)) {
    if (!m_cipher) {
        m_cipher = [](const QString& plain) {
            return Encrypt_Text(plain, QString::fromUtf16(kConfigSecret), true);
        };
    }
}

void ConfigurationSwitch::SaveConfiguration(const QString& dbSrc,
                                            const ServerSettings& settings) const {
    Failure failure;
    try {
        const QString ini = nxApp::Sys().GetDir(dbSrc, true) + u"config.ini"_s;
        if (nxApp::Sys().FileExist(ini) && !keepOldFile(ini)) {
            return;
        }
        writeKeys(ini, settings);
        if (m_log != nullptr) {
            m_log->LogWrite(u"Creato "_s + ini + u"."_s);
        }
        return;
    } catch (const vb::RuntimeError& e) {
        failure = {e.record().Number, e.record().Description};
    } catch (const std::exception& e) {
        failure = {0, QString::fromUtf8(e.what())};
    }
    const QString reason = QString::number(failure.number) + u": "_s + failure.description;
    if (m_log != nullptr) {
        m_log->LogWrite(u"Errore "_s + reason);
    }
    nxApp::MsgBox(u"Errore nel salvataggio della configurazione. Controllare lo spazio disponibile su disco e i diritti di scrittura dell'utente che si sta utilizzando."_s +
                      u"\r\n("_s + reason + u')',
                  48);
}

bool ConfigurationSwitch::keepOldFile(const QString& ini) const {
    if (nxApp::Sys().FileCopy(ini, ini + u".old"_s, false, false)) {
        return true;
    }
    return nxApp::MsgBox(u"Errore nella copia della vecchia configurazione. Controllare lo spazio disponibile su disco e i diritti di scrittura dell'utente che si sta utilizzando."_s +
                             u"\r\nProcedere al salvataggio della nuova configurazione?"_s,
                         kCopyFailedStyle) == 6;
}

void ConfigurationSwitch::writeKeys(const QString& ini, const ServerSettings& s) const {
    nxIni file;
    file.SetIni(ini);
    const std::pair<QString, QString> keys[] = {
        {u"DatabaseType"_s, u"1"_s},
        {u"ServerName"_s, s.serverName},
        {u"DatabaseName"_s, s.databaseName},
        {u"DatabaseDesc"_s, s.description},
        {u"SqlAuthType"_s, s.username.isEmpty() ? u"0"_s : u"1"_s},
        {u"SqlUsername"_s, s.username},
        {u"SqlPassword"_s, s.password},
    };
    for (const auto& [key, plain] : keys) {
        file.SetVal(kSection, key, m_cipher(plain));
    }
}

bool ConfigurationSwitch::RenameSource(const QString& dbSrc) const {
    if (nxApp::Sys().FileRename(dbSrc, dbSrc + u".old"_s, false)) {
        return true;
    }
    nxApp::MsgBox(u"Impossibile rinominare il database originario "_s + dbSrc +
                      u".\r\nControllare i diritti di scrittura dell'utente che si sta utilizzando o verificare che il database non sia in uso da parte di altri programmi."_s,
                  48);
    return false;
}

} // namespace engine
