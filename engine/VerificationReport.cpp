#include "engine/VerificationReport.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

const QString kCrLf = u"\r\n"_s;

} // namespace

const QString& TableReport::separator() {
    static const QString line = u"==================================================="_s;
    return line;
}

TableReport TableReport::forSystemTable(const QString& name) {
    return TableReport(separator() + kCrLf + u"Anomalie tabella di sistema "_s + name);
}

TableReport TableReport::forArchiveTable(const QString& name, const QString& archive) {
    return TableReport(separator() + kCrLf + u"Anomalie tabella "_s + name + u" ("_s + archive +
                       u')');
}

void TableReport::addInvalidDateField(const QString& column) {
    m_text += kCrLf + u"     Campi data non validi:"_s;
    m_text += kCrLf + u"          Campo ["_s + column + u']';
}

void TableReport::addNullKeyField(const QString& column) {
    m_text += kCrLf + u"     Campi della chiave primaria con valori nulli:"_s;
    m_text += kCrLf + u"          Campo ["_s + column + u']';
}

void TableReport::addRecord(const vb::Variant& sysRecord, const vb::Variant& fieldValue) {
    m_text += kCrLf + u"               SYS_RECORD: "_s + sysRecord.toString() + u" ("_s +
              fieldValue.toString() + u')';
}

void TableReport::addMemoIndex(const QString& index, const QString& column) {
    m_text += kCrLf + u"     Indice '"_s + index + u"': Campo '"_s + column +
              u"' di tipo MEMO."_s;
}

void TableReport::addMemoAdvice() {
    m_text += kCrLf + u"          In SQL Server non è possibile indicizzare un campo di tipo MEMO."_s;
    m_text += kCrLf +
              u"          Modificare il tipo dei campi o la definizione degli indici sopra elencati."_s;
}

void TableReport::addIndexTooLong(const QString& index) {
    m_text += kCrLf + u"     Indice "_s + index + u" di lunghezza eccessiva."_s;
    m_text += kCrLf + u"     - Modificare la definizione dell'archivio."_s;
}

QStringList TableReport::lines() const { return m_text.split(kCrLf); }

QStringList NotListedLines(const QString& table) {
    return {TableReport::separator(),
            u"Tabella "_s + table + u" non presente in DB_ELENCO. Non verrà importata."_s};
}

QString WalkErrorText(long number, const QString& description, const QString& where) {
    return u"Errore %1 (%2) - %3"_s.arg(QString::number(number), description, where);
}

bool IsSystemTableName(const QString& name) {
    if (!name.isEmpty() && name.at(0) >= u'0' && name.at(0) <= u'9') {
        return false;
    }
    const QString head = name.left(4).toUpper();
    return head != u"DIZ_" && head != u"D_";
}

long IndexLength::columnBytes(long dataType, long octetLength) {
    switch (dataType) {
    case 11:
        return 1;
    case 3:
        return 4;
    case 5:
    case 6:
    case 7:
        return 8;
    case 130:
    case 202:
    case 203:
        return octetLength;
    default:
        return -2;
    }
}

} // namespace engine
