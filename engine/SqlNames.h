#pragma once

#include <QString>

#include <functional>

// How DbImport writes table, field and index names into the T-SQL it sends. Names are never
// escaped: a name is either left as it is or put in square brackets.
namespace engine {

// Answers whether the server takes a name as one of its keywords or literals (the master
// connection's IsDbKeyword / IsDbLiteral). May be empty: then only the built-in list counts.
using KeywordTest = std::function<bool(const QString& name)>;

// "[123]" for a name that starts with a digit; a name closed by "]" at both ends loses them
// unless its second character is a digit; any other name as it stands.
QString EncloseTableName(const QString& name);

// Brackets for a leading digit, for "-", blank, "/", apostrophe or "&" inside, and for words the
// server reserves; an already bracketed name keeps its brackets only when a digit follows "[".
QString EncloseFieldName(const QString& name, const KeywordTest& isKeyword = {});

// The server's reserved words, as a blank-separated text searched for " NAME ".
bool IsReservedWord(const QString& name);

// The text between a leading and a trailing apostrophe, or the text itself.
QString StripQuotes(const QString& text);
// Every apostrophe written twice, for a literal inside a filter or a statement.
QString DoubleQuotes(const QString& text);
// The name without a leading "[" and a trailing "]", or the name itself.
QString StripBrackets(const QString& name);

// True when the first character is an ASCII digit.
bool StartsWithDigit(const QString& text);

} // namespace engine
