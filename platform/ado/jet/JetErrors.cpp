#include "platform/ado/jet/JetErrors.h"

#include "platform/jetfile/Error.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace ado::jet {

void fileNotFound(const QString& path) {
    throw Error(HResult::E_UNSPECIFIED,
                u"Could not find file '"_s + QDir::toNativeSeparators(path) + u"'."_s, kJetSource);
}

void badPassword() {
    throw Error(HResult::DB_SEC_E_AUTH_FAILED, u"Not a valid password."_s, kJetSource);
}

void fileInUse(const QString& path) {
    throw Error(HResult::E_UNSPECIFIED,
                u"The Microsoft Jet database engine cannot open the file '"_s +
                    QDir::toNativeSeparators(path) +
                    u"'.  It is already opened exclusively by another user, or you need permission to view its data."_s,
                kJetSource);
}

void unreadable(const QString& path, const jetfile::Error& cause) {
    if (cause.kind() == jetfile::Error::Kind::Io) {
        fileInUse(path);
    }
    // Jet's own text, then what the reader found, so that a damaged file says where.
    throw Error(HResult::E_UNSPECIFIED,
                u"Unrecognized database format '"_s + QDir::toNativeSeparators(path) + u"'. ("_s +
                    cause.message() + u')',
                kJetSource);
}

void noSuchTable(const QString& name) {
    throw Error(HResult::DB_E_BADTABLEID,
                u"The Microsoft Jet database engine cannot find the input table or query '"_s + name +
                    u"'.  Make sure it exists and that its name is spelled correctly."_s,
                kJetSource);
}

void unknownName(const QString& /*name*/) {
    // Jet takes a name it does not know for a parameter without a value.
    throw Error(HResult::DB_E_PARAMNOTOPTIONAL, u"No value given for one or more required parameters."_s,
                kJetSource);
}

void syntaxError(const QString& statement) {
    throw Error(HResult::DB_E_ERRORSINCOMMAND,
                u"This Jet provider reads files only and does not answer the statement: "_s + statement,
                kJetSource);
}

void readOnly(const QString& what) {
    throw Error(HResult::adErrFeatureNotAvailable,
                u"This Jet provider reads .mdb files only; "_s + what + u" is not available."_s,
                kJetSource);
}

Error fromReader(const jetfile::Error& cause) {
    return Error(HResult::E_UNSPECIFIED, cause.message(), kJetSource);
}

} // namespace ado::jet
