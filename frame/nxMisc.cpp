#include "frame/nxMisc.h"

#include "frame/nxApp.h"

#include <QDateTime>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

Qt::CaseSensitivity sensitivity(int compare) {
    return compare == nxMisc::kTextCompare ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

bool numberLike(const vb::Variant& v) {
    return v.isNumber() || v.isBoolean() || v.isDate() || v.isEmpty();
}

// VB's "<" between two variants: numbers by value, strings by their binary order, a number below
// any string, Empty as 0 beside a number and as "" beside a string; Null compares as false.
bool vbLess(const vb::Variant& a, const vb::Variant& b) {
    if (a.isNull() || b.isNull()) {
        return false;
    }
    const bool an = numberLike(a) && !(a.isEmpty() && b.isString());
    const bool bn = numberLike(b) && !(b.isEmpty() && a.isString());
    if (an && bn) {
        return a.toDouble().value_or(0) < b.toDouble().value_or(0);
    }
    if (an != bn) {
        return an;
    }
    return a.toString().compare(b.toString(), Qt::CaseSensitive) < 0;
}

} // namespace

nxMisc::nxMisc() : m_enabled(nxApp::IsInit()) {}

QString nxMisc::AnsiToVb(const QString& text) const {
    if (!m_enabled) {
        return {};
    }
    const qsizetype nul = text.indexOf(QChar(0));
    return nul < 0 ? text : text.left(nul);
}

int nxMisc::VariantKind(const vb::Variant& value) const {
    if (!m_enabled) {
        return 0;
    }
    switch (value.varType()) {
    case vb::VarType::Empty:
        return 1;
    case vb::VarType::Null:
        return 2;
    case vb::VarType::String:
        return 3;
    case vb::VarType::Integer:
    case vb::VarType::Long:
    case vb::VarType::Single:
    case vb::VarType::Double:
    case vb::VarType::Currency:
    case vb::VarType::Decimal:
        return 4;
    case vb::VarType::Date:
        return 5;
    case vb::VarType::Boolean:
        return 6;
    default:
        // The bare array flag (8192) alone is 7; a real array carries its element type beside
        // the flag and, like a byte or an object, counts as nothing known.
        return static_cast<int>(value.varType()) == 8192 ? 7 : 0;
    }
}

bool nxMisc::VariantIsDiff(const vb::Variant& a, const vb::Variant& b, bool byKind) const {
    if (!m_enabled) {
        return false;
    }
    if (a.isNull() != b.isNull()) {
        return true;
    }
    if (a.isNull()) {
        return false;
    }
    if (byKind ? VariantKind(a) != VariantKind(b) : a.varType() != b.varType()) {
        return true;
    }
    return IgnoreErrors(false, [&] { return a.toString() != b.toString(); });
}

QString nxMisc::FillWith(const QString& text, int length, const QString& fill) const {
    if (!m_enabled) {
        return {};
    }
    if (fill.isEmpty() || text.size() >= length) {
        return text;
    }
    return QString(length - text.size(), fill.front()) + text;
}

QString nxMisc::Hex(std::int32_t value, int digits) const {
    if (!m_enabled) {
        return {};
    }
    return FillWith(QString::number(static_cast<std::uint32_t>(value), 16).toUpper(), digits,
                    u"0"_s);
}

int nxMisc::InStrFirst(int start, const QString& text, const QString& chars, int compare) const {
    if (!m_enabled || text.isEmpty() || chars.isEmpty()) {
        return 0;
    }
    for (qsizetype i = std::max(start, 1) - 1; i < text.size(); ++i) {
        if (chars.contains(text[i], sensitivity(compare))) {
            return static_cast<int>(i + 1);
        }
    }
    return -1;
}

int nxMisc::InStrRev(int start, const QString& text, const QString& find, int compare) const {
    if (!m_enabled || text.isEmpty() || find.isEmpty()) {
        return 0;
    }
    const qsizetype from = (start < 1 || start > text.size()) ? text.size() : start;
    return static_cast<int>(text.lastIndexOf(find, from - 1, sensitivity(compare)) + 1);
}

int nxMisc::InStrX(int start, const QString& text, const QString& find, int count,
                   int compare) const {
    if (!m_enabled || text.isEmpty() || find.isEmpty()) {
        return 0;
    }
    qsizetype at = std::max(start, 1) - 1;
    qsizetype found = -1;
    for (int n = 0; n < std::max(count, 1); ++n) {
        found = text.indexOf(find, at, sensitivity(compare));
        if (found < 0) {
            return 0;
        }
        at = found + 1;
    }
    return static_cast<int>(found + 1);
}

bool nxMisc::IsAlpha(const QString& text, int position, const QString& extra) const {
    if (!m_enabled || position < 1 || position > text.size()) {
        return false;
    }
    const QChar c = text[position - 1];
    return c.toUpper() != c.toLower() || c == u'_' || extra.contains(c);
}

bool nxMisc::IsNumber(const QString& text, int position, const QString& extra) const {
    if (!m_enabled || position < 1 || position > text.size()) {
        return false;
    }
    const QChar c = text[position - 1];
    return (c >= u'0' && c <= u'9') || extra.contains(c);
}

QString nxMisc::LeadAppend(const QString& text, const QString& pair) const {
    if (!m_enabled) {
        return {};
    }
    if (pair.isEmpty()) {
        return text;
    }
    QString result = text;
    if (!result.startsWith(pair.front())) {
        result.prepend(pair.front());
    }
    if (!result.endsWith(pair.back())) {
        result.append(pair.back());
    }
    return result;
}

QString nxMisc::LeadRemove(const QString& text, const QString& pair) const {
    if (!m_enabled) {
        return {};
    }
    if (text.isEmpty() || pair.isEmpty()) {
        return text;
    }
    QString result = text;
    while (!result.isEmpty() && result.back() == pair.back()) {
        result.chop(1);
    }
    while (!result.isEmpty() && result.front() == pair.front()) {
        result.remove(0, 1);
    }
    return result;
}

void nxMisc::Swap(vb::Variant& a, vb::Variant& b) const {
    if (m_enabled) {
        std::swap(a, b);
    }
}

vb::Variant nxMisc::Min(const vb::Variant& a, const vb::Variant& b,
                        const vb::Variant& floor) const {
    if (!m_enabled) {
        return {};
    }
    const bool bSmaller = vbLess(b, a);
    const vb::Variant& smaller = bSmaller ? b : a;
    const vb::Variant& larger = bSmaller ? a : b;
    if (!floor.isMissing() && vbLess(smaller, floor) && !vbLess(larger, floor)) {
        return larger;
    }
    return smaller;
}

bool nxMisc::MinMax(vb::Variant& value, vb::Variant low, vb::Variant high, bool fix) const {
    if (!m_enabled) {
        return false;
    }
    if (vbLess(high, low)) {
        std::swap(low, high);
    }
    const bool below = vbLess(value, low);
    const bool above = vbLess(high, value);
    if ((below || above) && fix) {
        value = below ? low : high;
    }
    return !below && !above;
}

bool nxMisc::ArrayIsEmpty(const vb::Variant& array, int dimensions) const {
    if (!m_enabled) {
        return false;
    }
    if (const QByteArray* bytes = array.get<QByteArray>()) {
        return bytes->isEmpty();
    }
    const vb::VariantArray* items = array.get<vb::VariantArray>();
    if (items == nullptr || !*items || (*items)->empty()) {
        return true;
    }
    if (dimensions == 2) {
        const vb::VariantArray* inner = (*items)->front().get<vb::VariantArray>();
        return inner == nullptr || !*inner || (*inner)->empty();
    }
    return false;
}

QString nxMisc::RemoveChars(const QString& text, const QString& chars, bool blank) const {
    if (!m_enabled) {
        return {};
    }
    if (chars.contains(u' ')) {
        blank = false; // a blank put in place would be found again for ever
    }
    QString result = text;
    for (int at = InStrFirst(1, result, chars); at > 0; at = InStrFirst(at, result, chars)) {
        if (blank) {
            result[at - 1] = u' ';
        } else {
            result.remove(at - 1, 1);
        }
    }
    return result;
}

void nxMisc::StrDel(QString& text, int start, int count) const {
    if (!m_enabled || start < 1 || start > text.size() || count <= 0) {
        return;
    }
    text.remove(start - 1, count);
}

QString nxMisc::Token(const QString& text, int index, const QString& def,
                      const QString& separator) const {
    if (!m_enabled) {
        return {};
    }
    if (text.isEmpty() || index < 1) {
        return def;
    }
    const QStringList pieces =
        separator.isEmpty() ? QStringList{text} : text.split(separator, Qt::KeepEmptyParts);
    if (index > pieces.size() || pieces[index - 1].isEmpty()) {
        return def;
    }
    return pieces[index - 1];
}

QString nxMisc::NewID(int length) const {
    if (!m_enabled) {
        return {};
    }
    length = std::min(length, 24);
    const QDateTime now = QDateTime::currentDateTime();
    // Seeded from the clock at each call, so two ids of one tick may share their random digits.
    QRandomGenerator random(static_cast<quint32>(now.time().msecsSinceStartOfDay()));
    QString id =
        now.toString(u"yyddMMHHmmss"_s) + Hex(static_cast<std::int32_t>(random.bounded(65536u)), 4);
    if (length > 16) {
        id += Hex(static_cast<std::int32_t>(random.bounded(2147483647u)), 8).right(length - 16);
    } else if (length < 16) {
        id = length > 0 ? id.right(length) : QString();
    }
    return id;
}

QString nxMisc::ApiciDoppi(const QString& text) const {
    return QString(text).replace(u'\'', u"''"_s);
}
