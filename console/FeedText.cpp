#include "console/FeedText.h"

using namespace Qt::StringLiterals;

namespace feed {
namespace {

QString nameAndDescription(const QString& table, const vb::Variant& description) {
    // A Null description reads as nothing, as "" & Null does.
    return table + u" ("_s + description.toString() + u")"_s;
}

} // namespace

QString importStart() {
    return u"Inizio importazione archivio."_s;
}

QString importEnd() {
    return u"Termine importazione archivio."_s;
}

QString sysTableImporting(const QString& table) {
    return u"Importazione tabella di sistema "_s + table;
}

QString userTableImportStart(std::int16_t count) {
    return u"Sono presenti "_s + QString::number(count) + u" archivi utente nel db di origine."_s;
}

QString userTableImporting(const QString& table, const vb::Variant& description) {
    return u"Importazione tabella utente "_s + nameAndDescription(table, description);
}

QString userTableCreating(const QString& table, const vb::Variant& description) {
    return u"---> Creazione tabella "_s + nameAndDescription(table, description);
}

QString userTableDataCopy(const QString& table, const vb::Variant& description) {
    return u"---> Copia dati tabella "_s + nameAndDescription(table, description);
}

QString userTableIndexCreating(const QString& table, const vb::Variant& description) {
    return u"---> Creazione indici tabella "_s + nameAndDescription(table, description);
}

QString userTableNotExisting(const QString& table, const vb::Variant& description) {
    return u"---> La tabella "_s + nameAndDescription(table, description) +
           u" non esiste nel db sorgente."_s;
}

QString dictionaryImportStart(std::int16_t count) {
    return u"Sono presenti "_s + QString::number(count) + u" dizionari nel db di origine."_s;
}

QString dictionaryImporting(const QString& dictionary) {
    return u"Importazione dizionario "_s + dictionary;
}

QString dictionaryNotExisting(const QString& dictionary) {
    return u"---> Il dizionario "_s + dictionary + u" non esiste nel db sorgente."_s;
}

std::optional<QString> dictionaryCreating(const QString& dictionary, std::int16_t stage) {
    switch (stage) {
    case 1:
        return u"---> Creazione dizionario "_s + dictionary;
    case 2:
        return u"---> Copia dizionario "_s + dictionary;
    case 3:
        return u"---> Creazione indici"_s;
    default:
        return std::nullopt;
    }
}

std::optional<QString> errorLine(std::int32_t kind, const QString& message) {
    switch (kind) {
    case 0:
    case 1:
    case 2:
    case 6:
        return message;
    case 3:
        return u"Errore conversione dati: "_s + message;
    case 4:
        return u"Errore creazione indice: "_s + message;
    case 5:
        // The reason goes to the box, not to the list.
        return u"Verifica database sorgente non riuscita."_s;
    default:
        return std::nullopt;
    }
}

QString verificationBox(const QString& message, bool askViewLog) {
    QString text = u"Errore verifica database sorgente: "_s + message;
    if (askViewLog) {
        text += u"\r\n\r\nVisualizzare il log ora?"_s;
    }
    return text;
}

} // namespace feed
