#include "recordset/SqlCondition.h"

#include "recordset/RsSource.h"

#include <QDate>
#include <QDateTime>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace rs {

namespace {

bool isBlank(QChar c) {
    return c == u' ';
}

// A character of a bare name or a bare value: anything but blanks, brackets of both kinds,
// comparison signs and the openers of quoted values.
bool isNameChar(QChar c) {
    static constexpr QStringView kStops = u" ()[]<>=!'#{}";
    return !kStops.contains(c);
}

// Letters, digits and "_": what may not stand on either side of a keyword.
bool isWordChar(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

// A scanner over a trimmed condition text, 0-based.
class Scanner {
public:
    explicit Scanner(const QString& text) : m_t(text) {}

    qsizetype size() const { return m_t.size(); }
    bool atEnd(qsizetype i) const { return i >= m_t.size(); }
    QChar at(qsizetype i) const { return atEnd(i) ? QChar() : m_t.at(i); }

    qsizetype skipBlanks(qsizetype i) const {
        while (!atEnd(i) && isBlank(m_t.at(i))) {
            ++i;
        }
        return i;
    }

    // `word` (upper case) stands at `i` as a whole word.
    bool wordAt(qsizetype i, QStringView word) const {
        if (i < 0 || i + word.size() > m_t.size()) {
            return false;
        }
        if (QStringView(m_t).mid(i, word.size()).compare(word, Qt::CaseInsensitive) != 0) {
            return false;
        }
        const bool before = i == 0 || !isWordChar(m_t.at(i - 1));
        const bool after = atEnd(i + word.size()) || !isWordChar(m_t.at(i + word.size()));
        return before && after;
    }

    // A field: bare words and "[...]" parts joined by "."; the end, or nothing.
    std::optional<qsizetype> readName(qsizetype i) const {
        const qsizetype start = i;
        for (;;) {
            if (at(i) == u'[') {
                const qsizetype close = m_t.indexOf(u']', i + 1);
                if (close < 0) {
                    return std::nullopt;
                }
                i = close + 1;
            } else {
                while (!atEnd(i) && isNameChar(m_t.at(i)) && m_t.at(i) != u'.') {
                    ++i;
                }
            }
            if (at(i) != u'.') {
                break;
            }
            ++i;
        }
        if (i == start) {
            return std::nullopt;
        }
        return i;
    }

    // A value: "{...}", '...' (with '' inside), #...#, or a bare word; its end, or nothing.
    std::optional<qsizetype> readValue(qsizetype i, bool& isDate) const {
        isDate = false;
        const QChar open = at(i);
        if (open == u'{') {
            const qsizetype close = m_t.indexOf(u'}', i + 1);
            if (close < 0) {
                return std::nullopt;
            }
            isDate = quotedDate(QStringView(m_t).mid(i + 1, close - i - 1));
            return close + 1;
        }
        if (open == u'\'' || open == u'#') {
            for (qsizetype j = i + 1; !atEnd(j); ++j) {
                if (m_t.at(j) != open) {
                    continue;
                }
                // A doubled apostrophe stands for one inside the value and doesn't end it.
                if (open == u'\'' && at(j + 1) == u'\'') {
                    ++j;
                    continue;
                }
                isDate = open == u'#';
                return j + 1;
            }
            return std::nullopt;
        }
        qsizetype j = i;
        while (!atEnd(j) && !isBlank(m_t.at(j)) && m_t.at(j) != u')') {
            ++j;
        }
        if (j == i) {
            return std::nullopt;
        }
        return j;
    }

    QString mid(qsizetype from, qsizetype to) const { return m_t.mid(from, to - from); }

private:
    // The text between the first pair of apostrophes inside "{...}" reads as a date.
    static bool quotedDate(QStringView inner) {
        const qsizetype open = inner.indexOf(u'\'');
        const qsizetype close = open < 0 ? -1 : inner.indexOf(u'\'', open + 1);
        if (close < 0) {
            return false;
        }
        const QString text = inner.mid(open + 1, close - open - 1).toString();
        static constexpr std::array<QStringView, 4> kDates = {u"yyyy-MM-dd", u"dd/MM/yyyy",
                                                              u"d/M/yyyy", u"MM/dd/yyyy"};
        static constexpr std::array<QStringView, 2> kTimes = {u"yyyy-MM-dd HH:mm:ss",
                                                              u"yyyy-MM-dd HH:mm:ss.zzz"};
        for (QStringView f : kDates) {
            if (QDate::fromString(text, f.toString()).isValid()) {
                return true;
            }
        }
        for (QStringView f : kTimes) {
            if (QDateTime::fromString(text, f.toString()).isValid()) {
                return true;
            }
        }
        return false;
    }

    const QString& m_t;
};

// The comparison that follows a field; its end, or nothing. Signs first, longest first.
std::optional<qsizetype> readOperator(const Scanner& s, qsizetype i, SQLParts& parts) {
    static constexpr std::array<QStringView, 6> kSigns = {u"<=", u">=", u"<>", u"<", u"=", u">"};
    for (QStringView sign : kSigns) {
        if (s.mid(i, i + sign.size()) == sign) {
            parts.op = sign.toString();
            return i + sign.size();
        }
    }
    static constexpr std::array<QStringView, 4> kWords = {u"BETWEEN", u"LIKE", u"IS", u"NOT"};
    for (QStringView word : kWords) {
        if (!s.wordAt(i, word)) {
            continue;
        }
        parts.op = word.toString();
        qsizetype end = i + word.size();
        // "IS NOT NULL": the NOT belongs to the operator.
        const qsizetype next = s.skipBlanks(end);
        if (word == u"IS" && s.wordAt(next, u"NOT")) {
            parts.op = u"IS NOT"_s;
            parts.isNot = true;
            end = next + 3;
        }
        return end;
    }
    return std::nullopt;
}

} // namespace

QString SQLFieldName(const QString& name, bool bracket) {
    QString plain = name;
    plain.remove(u'[');
    plain.remove(u']');
    if (!bracket) {
        return plain;
    }
    const qsizetype dot = plain.indexOf(u'.');
    plain.insert(dot + 1, u'[');
    return plain + u']';
}

QString SQLValueFrom(const QString& text) {
    QString doubled = text;
    return doubled.replace(u"'"_s, u"''"_s);
}

void SQLCleanValue(QString& value) {
    auto leadRemove = [&value](QChar last, QChar first) {
        while (value.endsWith(last)) {
            value.chop(1);
        }
        while (value.startsWith(first)) {
            value.remove(0, 1);
        }
    };
    if (value.startsWith(u'\'') || value.startsWith(u'#')) {
        const QChar quote = value.at(0);
        leadRemove(quote, quote);
    }
    leadRemove(u'%', u'%');
}

QString SQLFieldOrder(const QString& text, QString& direction) {
    const QString t = TrimBlanks(text);
    const Scanner s(t);
    const qsizetype end = s.readName(0).value_or(0);
    const qsizetype next = s.skipBlanks(end);
    direction = s.wordAt(next, u"DESC") ? u"desc"_s : u"asc"_s;
    return t.left(end);
}

QString SQLOperator(const QString& text, int& position) {
    static constexpr std::array<QStringView, 4> kWords = {u"AND", u"OR", u"NOT", u"IS"};
    const Scanner s(text);
    for (qsizetype i = std::max(position, 1) - 1; i < text.size(); ++i) {
        for (QStringView word : kWords) {
            if (s.wordAt(i, word)) {
                position = static_cast<int>(i) + 1;
                return word.toString();
            }
        }
    }
    return {};
}

QString SQLStatement(const QString& text, int& position, SQLParts& parts) {
    parts = SQLParts{};
    const QString t = TrimBlanks(text);
    if (t.isEmpty() || position > t.size()) {
        return {};
    }
    const Scanner s(t);
    qsizetype i = s.skipBlanks(std::max(position, 1) - 1);
    while (s.at(i) == u'(') {
        ++parts.openBrackets;
        i = s.skipBlanks(i + 1);
    }
    const qsizetype start = i;
    if (s.wordAt(i, u"NOT")) {
        parts.isNot = true;
        i = s.skipBlanks(i + 3);
    }

    const std::optional<qsizetype> fieldEnd = s.readName(i);
    if (!fieldEnd) {
        return {};
    }
    parts.field = s.mid(i, *fieldEnd);

    i = s.skipBlanks(*fieldEnd);
    if (s.wordAt(i, u"NOT")) {
        parts.isNot = true;
        i = s.skipBlanks(i + 3);
    }
    const std::optional<qsizetype> opEnd = readOperator(s, i, parts);
    if (!opEnd) {
        return {};
    }

    bool isDate = false;
    i = s.skipBlanks(*opEnd);
    std::optional<qsizetype> end = s.readValue(i, isDate);
    if (!end) {
        return {};
    }
    parts.value1 = s.mid(i, *end);
    parts.isDate = isDate;
    if (parts.op == u"BETWEEN") {
        i = s.skipBlanks(*end);
        if (!s.wordAt(i, u"AND")) {
            return {};
        }
        i = s.skipBlanks(i + 3);
        end = s.readValue(i, isDate);
        if (!end) {
            return {};
        }
        parts.value2 = s.mid(i, *end);
    }

    const QString statement = s.mid(start, *end);
    qsizetype behind = *end;
    for (qsizetype k = s.skipBlanks(behind); s.at(k) == u')'; k = s.skipBlanks(k + 1)) {
        ++parts.closeBrackets;
        behind = k + 1;
    }
    position = static_cast<int>(behind) + 1;
    return statement;
}

int SQLVerify(const QString& text) {
    const QString t = TrimBlanks(text);
    if (t.isEmpty()) {
        return 0;
    }
    int position = 1;
    int count = 0;
    for (;;) {
        SQLParts parts;
        if (SQLStatement(t, position, parts).isEmpty()) {
            return 0;
        }
        ++count;
        if (position > t.size()) {
            return count;
        }
        // Between two conditions stands exactly one joining word, and nothing else.
        int next = static_cast<int>(Scanner(t).skipBlanks(position - 1)) + 1;
        const int expected = next;
        const QString op = SQLOperator(t, next);
        if (op.isEmpty() || next != expected) {
            return 0;
        }
        position = next + static_cast<int>(op.size());
    }
}

} // namespace rs
