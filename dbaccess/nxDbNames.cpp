#include "dbaccess/nxDb.h"

#include "frame/nxApp.h"

using namespace Qt::StringLiterals;

namespace {

bool startsWithDigit(const QString& text) {
    return !text.isEmpty() && text.front().isDigit();
}

} // namespace

void nxDb::setDelimiters(bool server) {
    m_dateDel = server ? u"'"_s : u"#"_s;
    m_fldStartDel = u"["_s;
    m_fldEndDel = u"]"_s;
    m_jolly = u"%"_s;
    m_dateType = server ? 135 : 7; // adDBTimeStamp, adDate
}

// A plain substring search: a fragment of a keyword counts as reserved.
bool nxDb::IsReservedKeyword(const QString& Word) const {
    return nxApp::ReservedWords().contains(Word.toUpper());
}

QString nxDb::NormalizeTbl(const QString& Name, bool Quote) const {
    const QString bracketed = m_fldStartDel + Name + m_fldEndDel;
    if (!m_cn) {
        return Name;
    }
    if (nxApp::AdoConnectionDbType(m_cn->Provider()) == 1) {
        if (startsWithDigit(Name)) {
            return bracketed;
        }
        if (Name.size() >= 2 && Name.startsWith(m_fldStartDel) && Name.endsWith(m_fldEndDel)) {
            const QString inner = Name.mid(m_fldStartDel.size(),
                                           Name.size() - m_fldStartDel.size() - m_fldEndDel.size());
            // Only a name that begins with a digit needs its brackets on the server.
            return startsWithDigit(inner) ? Name : inner;
        }
        return Name;
    }
    if (startsWithDigit(Name) && Quote) {
        return bracketed;
    }
    if (Name.toLower().contains(u" join "_s)) {
        return Name; // a join expression passes through
    }
    if (Name.contains(u' ') || Name.contains(u'/')) {
        return bracketed;
    }
    return Name;
}

QString nxDb::NormalizeFld(const QString& Name) const {
    if (Name.startsWith(m_fldStartDel) && Name.endsWith(m_fldEndDel)) {
        return Name;
    }
    return m_fldStartDel + Name + m_fldEndDel;
}

QString nxDb::DataTypeKind(long Type, const QString& NumberVal, const QString& StringVal,
                           const QString& BooleanVal, const QString& DateVal) const {
    if (!m_init) {
        return {};
    }
    switch (Type) {
    case 2:   // adSmallInt
    case 3:   // adInteger
    case 4:   // adSingle
    case 5:   // adDouble
    case 6:   // adCurrency
    case 17:  // adUnsignedTinyInt
    case 131: // adNumeric
        return NumberVal;
    // Only the national text types: every text column this system makes is one (Jet's text and
    // memo, the server's nvarchar and ntext). The narrow adChar (129) and adVarChar (200), like
    // adBigInt or the binary types, have no kind: a char or varchar column made by someone else
    // on the server gets the empty answer, so nxRs::FldSet refuses values for it instead of
    // writing text the system never checked.
    case 130: // adWChar
    case 202: // adVarWChar
    case 203: // adLongVarWChar
        return StringVal;
    case 11: // adBoolean
        return BooleanVal;
    case 7:   // adDate
    case 135: // adDBTimeStamp
        return DateVal;
    default:
        return {};
    }
}
