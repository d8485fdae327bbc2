#pragma once

#include <QString>

// The small parser of conditions that the record dialogs use to read a where text back into
// field, operator and values. Positions count from 1, as everywhere in the library, and refer to
// the text after its blanks are trimmed.
namespace rs {

// Takes out every "[" and "]"; with `bracket` puts "[" behind the first "." (or at the start)
// and "]" at the end: "t.Campo" gives "t.[Campo]", "[a].[b]" gives "a.[b]".
QString SQLFieldName(const QString& name, bool bracket);

// Doubles each apostrophe, for a value between quotes.
QString SQLValueFrom(const QString& text);

// In place: a value opened by "'" or "#" loses that character at both ends, then "%" is taken
// off both ends.
void SQLCleanValue(QString& value);

// Reads a field from the start of `text`; `direction` becomes "desc" when the next word is DESC
// in any case, otherwise "asc".
QString SQLFieldOrder(const QString& text, QString& direction);

// The first of the words AND, OR, NOT, IS at or after `position`, as a whole word and without
// regard to case; `position` moves to it. Empty, with `position` unchanged, when there is none.
QString SQLOperator(const QString& text, int& position);

// The parts of one condition.
struct SQLParts {
    QString field;
    QString op; // "=", "<>", "LIKE", "BETWEEN", "IS", "IS NOT"... in capitals
    QString value1;
    QString value2; // with BETWEEN
    int openBrackets = 0;
    int closeBrackets = 0;
    bool isNot = false;
    bool isDate = false; // the first value is #...# or a {...} holding a date
};

// Reads one condition "field operator value" at `position` and returns its text (from NOT or
// the field to the end of the last value); `position` moves behind it and the brackets that
// close it. Empty when nothing can be read there; `parts` then hold what was read so far.
QString SQLStatement(const QString& text, int& position, SQLParts& parts);

// The number of conditions in a where text joined by AND, OR (and NOT), or 0 when the text is
// empty, a condition can't be read, or something stands behind the last one.
int SQLVerify(const QString& text);

} // namespace rs
