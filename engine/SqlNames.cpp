#include "engine/SqlNames.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace engine {

namespace {

// Begins and ends with a blank, so that " NAME " finds whole words only. CURRENT_USER stands
// twice in the list the suite was written with; kept as it is.
constexpr char16_t kReservedWords[] =
    u" ADD ALL ALTER AND ANY AS ASC AUTHORIZATION BACKUP BEGIN BETWEEN BREAK BROWSE BULK BY "
    u"CASCADE CASE CHECK CHECKPOINT CLOSE CLUSTERED COALESCE COLLATE COLUMN COMMIT COMPUTE "
    u"CONSTRAINT CONTAINS CONTAINSTABLE CONTINUE CONVERT CREATE CROSS CURRENT CURRENT_DATE "
    u"CURRENT_TIME CURRENT_TIMESTAMP CURRENT_USER CURRENT_USER CURSOR DATABASE DBCC DEALLOCATE "
    u"DECLARE DEFAULT DELETE DENY DESC DISK DISTINCT DISTRIBUTED DOUBLE DROP DUMMY DUMP ELSE END "
    u"ERRLVL ESCAPE EXCEPT EXEC EXECUTE EXISTS EXIT FETCH FILE FILLFACTOR FOR FOREIGN FREETEXT "
    u"FREETEXTTABLE FROM FULL FUNCTION GOTO GRANT GROUP HAVING HOLDLOCK IDENTITY IDENTITY_INSERT "
    u"IDENTITYCOL IF IN INDEX INNER INSERT INTERSECT INTO IS JOIN KEY KILL LEFT LIKE LINENO LOAD "
    u"NATIONAL NOCHECK NONCLUSTERED NOT NULL NULLIF OF OFF OFFSETS ON OPEN OPENDATASOURCE "
    u"OPENQUERY OPENROWSET OPENXML OPTION OR ORDER OUTER OVER PERCENT PLAN PRECISION PRIMARY PRINT "
    u"PROC PROCEDURE PUBLIC RAISERROR READ READTEXT RECONFIGURE REFERENCES REPLICATION RESTORE "
    u"RESTRICT RETURN REVOKE RIGHT ROLLBACK ROWCOUNT ROWGUIDCOL RULE SAVE SCHEMA SELECT "
    u"SESSION_USER SET SETUSER SHUTDOWN SOME STATISTICS SYSTEM_USER TABLE TEXTSIZE THEN TO TOP "
    u"TRAN TRANSACTION TRIGGER TRUNCATE TSEQUAL UNION UNIQUE UPDATE UPDATETEXT USE USER VALUES "
    u"VARYING VIEW WAITFOR WHEN WHERE WHILE WITH WRITETEXT ";

bool isAsciiDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// Mid(name, 2, Len(name) - 2), for a name of at least one character.
QString inner(const QString& name) { return name.mid(1, qMax<qsizetype>(0, name.size() - 2)); }

bool secondIsDigit(const QString& name) { return name.size() > 1 && isAsciiDigit(name.at(1)); }

} // namespace

bool StartsWithDigit(const QString& text) { return !text.isEmpty() && isAsciiDigit(text.at(0)); }

QString EncloseTableName(const QString& name) {
    if (StartsWithDigit(name)) {
        return u'[' + name + u']';
    }
    // Both ends are tested against the closing bracket: a name in ordinary brackets stays as it is.
    if (name.startsWith(u']') && name.endsWith(u']')) {
        return secondIsDigit(name) ? name : inner(name);
    }
    return name;
}

QString EncloseFieldName(const QString& name, const KeywordTest& isKeyword) {
    if (StartsWithDigit(name)) {
        return u'[' + name + u']';
    }
    if (name.startsWith(u'[') && name.endsWith(u']')) {
        return secondIsDigit(name) ? name : inner(name);
    }
    for (const QChar c : {u'-', u' ', u'/', u'\'', u'&'}) {
        if (name.contains(c)) {
            return u'[' + name + u']';
        }
    }
    if ((isKeyword && isKeyword(name)) || IsReservedWord(name)) {
        return u'[' + name + u']';
    }
    return name;
}

bool IsReservedWord(const QString& name) {
    // The record copy asks for every field of every record: one word is looked up in a set made
    // once; a name with a blank is matched against the list itself, where a run of words such as
    // "ADD ALL" counts as found.
    static const QSet<QString> words = [] {
        QSet<QString> set;
        for (const QStringView word : QStringView(kReservedWords).split(u' ', Qt::SkipEmptyParts)) {
            set.insert(word.toString());
        }
        return set;
    }();
    const QString upper = name.toUpper();
    if (!upper.contains(u' ')) {
        return words.contains(upper);
    }
    return QStringView(kReservedWords).contains(u' ' + upper + u' ');
}

QString StripQuotes(const QString& text) {
    if (text.startsWith(u'\'') && text.endsWith(u'\'')) {
        return inner(text);
    }
    return text;
}

QString DoubleQuotes(const QString& text) {
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        out += c;
        if (c == u'\'') {
            out += c;
        }
    }
    return out;
}

QString StripBrackets(const QString& name) {
    if (name.startsWith(u'[') && name.endsWith(u']')) {
        return inner(name);
    }
    return name;
}

} // namespace engine
