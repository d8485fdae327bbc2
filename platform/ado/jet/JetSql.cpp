#include "platform/ado/jet/JetSql.h"

#include "platform/ado/Compare.h"
#include "platform/ado/MemoryRowset.h"
#include "platform/ado/jet/JetErrors.h"
#include "platform/ado/jet/JetRowsets.h"
#include "platform/jetfile/Error.h"

#include <algorithm>

#include <optional>

using namespace Qt::StringLiterals;

namespace ado::jet {
namespace {

struct Token {
    enum class Kind { Word, Name, Number, Text, Date, Symbol, End } kind = Kind::End;
    QString text;
};

class Lexer {
public:
    Lexer(const QString& text, const QString& statement) : m_text(text), m_statement(statement) {}

    std::vector<Token> tokens() {
        std::vector<Token> result;
        for (;;) {
            while (m_pos < m_text.size() && m_text[m_pos].isSpace()) {
                ++m_pos;
            }
            if (m_pos >= m_text.size()) {
                result.push_back({Token::Kind::End, {}});
                return result;
            }
            result.push_back(read());
        }
    }

private:
    Token read() {
        const QChar c = m_text[m_pos];
        if (c == u'[') {
            const qsizetype close = m_text.indexOf(u']', m_pos);
            if (close < 0) {
                syntaxError(m_statement);
            }
            Token t{Token::Kind::Name, m_text.mid(m_pos + 1, close - m_pos - 1)};
            m_pos = close + 1;
            return t;
        }
        if (c == u'\'' || c == u'"') {
            QString value;
            ++m_pos;
            for (;;) {
                if (m_pos >= m_text.size()) {
                    syntaxError(m_statement);
                }
                if (m_text[m_pos] == c) {
                    if (m_pos + 1 < m_text.size() && m_text[m_pos + 1] == c) {
                        value += c;
                        m_pos += 2;
                        continue;
                    }
                    ++m_pos;
                    return {Token::Kind::Text, value};
                }
                value += m_text[m_pos++];
            }
        }
        if (c == u'#') {
            const qsizetype close = m_text.indexOf(u'#', m_pos + 1);
            if (close < 0) {
                syntaxError(m_statement);
            }
            Token t{Token::Kind::Date, m_text.mid(m_pos + 1, close - m_pos - 1)};
            m_pos = close + 1;
            return t;
        }
        if (c.isDigit()) {
            const qsizetype start = m_pos;
            while (m_pos < m_text.size() && (m_text[m_pos].isDigit() || m_text[m_pos] == u'.')) {
                ++m_pos;
            }
            return {Token::Kind::Number, m_text.mid(start, m_pos - start)};
        }
        if (c.isLetter() || c == u'_') {
            const qsizetype start = m_pos;
            while (m_pos < m_text.size() &&
                   (m_text[m_pos].isLetterOrNumber() || m_text[m_pos] == u'_')) {
                ++m_pos;
            }
            return {Token::Kind::Word, m_text.mid(start, m_pos - start)};
        }
        for (const QString& op : {u"<>"_s, u"<="_s, u">="_s}) {
            if (QStringView(m_text).mid(m_pos).startsWith(op)) {
                m_pos += 2;
                return {Token::Kind::Symbol, op};
            }
        }
        if (QStringView(u"(),*=<>.").contains(c)) {
            ++m_pos;
            return {Token::Kind::Symbol, QString(c)};
        }
        syntaxError(m_statement);
    }

    const QString& m_text;
    const QString& m_statement;
    qsizetype m_pos = 0;
};

// A condition, evaluated against the row a rowset stands on.
struct Condition {
    enum class Kind { And, Or, Not, IsNull, Compare } kind = Kind::Compare;
    std::vector<Condition> children;
    // Operands: a column (>= 0) or a literal.
    int leftColumn = -1;
    vb::Variant leftValue;
    int rightColumn = -1;
    vb::Variant rightValue;
    QString op;
};

struct Operand {
    QString name; // a column name, or empty for a literal
    vb::Variant value;
};

struct SelectItem {
    enum class Kind { Star, Column, Count, Max, Min } kind = Kind::Column;
    QString column;
    QString alias;
};

struct Query;

struct ParsedCondition {
    enum class Kind { And, Or, Not, IsNull, Compare } kind = ParsedCondition::Kind::Compare;
    std::vector<ParsedCondition> children;
    Operand left;
    Operand right;
    QString op;
};

struct Query {
    std::optional<long> top;
    std::vector<SelectItem> items;
    QString table;
    std::shared_ptr<Query> subquery;
    std::optional<ParsedCondition> where;
    std::vector<std::pair<QString, bool>> orderBy; // column, descending
};

class Parser {
public:
    Parser(std::vector<Token> tokens, const QString& statement)
        : m_tokens(std::move(tokens)), m_statement(statement) {}

    Query parseStatement() {
        Query q = parseQuery();
        if (peek().kind != Token::Kind::End) {
            fail();
        }
        return q;
    }

private:
    [[noreturn]] void fail() const { syntaxError(m_statement); }
    const Token& peek() const { return m_tokens[m_pos]; }
    Token take() {
        Token t = m_tokens[m_pos];
        if (t.kind != Token::Kind::End) {
            ++m_pos;
        }
        return t;
    }
    bool isWord(const char16_t* word) const {
        return peek().kind == Token::Kind::Word &&
               peek().text.compare(QStringView(word), Qt::CaseInsensitive) == 0;
    }
    bool takeWord(const char16_t* word) {
        if (!isWord(word)) {
            return false;
        }
        ++m_pos;
        return true;
    }
    void expectWord(const char16_t* word) {
        if (!takeWord(word)) {
            fail();
        }
    }
    bool takeSymbol(const char16_t* symbol) {
        if (peek().kind == Token::Kind::Symbol && peek().text == QStringView(symbol)) {
            ++m_pos;
            return true;
        }
        return false;
    }
    void expectSymbol(const char16_t* symbol) {
        if (!takeSymbol(symbol)) {
            fail();
        }
    }
    static bool reserved(const QString& word) {
        static const QStringList words{u"select"_s, u"from"_s, u"where"_s, u"order"_s, u"by"_s,
                                       u"and"_s,    u"or"_s,   u"not"_s,   u"is"_s,    u"null"_s,
                                       u"as"_s,     u"top"_s,  u"asc"_s,   u"desc"_s};
        return words.contains(word, Qt::CaseInsensitive);
    }
    QString takeName() {
        const Token t = take();
        if (t.kind == Token::Kind::Name || (t.kind == Token::Kind::Word && !reserved(t.text))) {
            return t.text;
        }
        fail();
    }

    Query parseQuery() {
        Query q;
        expectWord(u"select");
        if (takeWord(u"top")) {
            const Token n = take();
            if (n.kind != Token::Kind::Number) {
                fail();
            }
            q.top = n.text.toLong();
        }
        do {
            q.items.push_back(parseItem());
        } while (takeSymbol(u","));
        expectWord(u"from");
        if (takeSymbol(u"(")) {
            q.subquery = std::make_shared<Query>(parseQuery());
            expectSymbol(u")");
            takeWord(u"as");
            (void)takeName();
        } else {
            q.table = takeName();
        }
        if (takeWord(u"where")) {
            q.where = parseOr();
        }
        if (takeWord(u"order")) {
            expectWord(u"by");
            do {
                const QString column = takeName();
                bool descending = false;
                if (takeWord(u"desc")) {
                    descending = true;
                } else {
                    takeWord(u"asc");
                }
                q.orderBy.emplace_back(column, descending);
            } while (takeSymbol(u","));
        }
        return q;
    }

    SelectItem parseItem() {
        SelectItem item;
        if (takeSymbol(u"*")) {
            item.kind = SelectItem::Kind::Star;
            return item;
        }
        for (auto [word, kind] : {std::pair{u"count", SelectItem::Kind::Count},
                                  std::pair{u"max", SelectItem::Kind::Max},
                                  std::pair{u"min", SelectItem::Kind::Min}}) {
            if (isWord(word) && m_tokens[m_pos + 1].kind == Token::Kind::Symbol &&
                m_tokens[m_pos + 1].text == u"("_s) {
                m_pos += 2;
                item.kind = kind;
                if (kind == SelectItem::Kind::Count) {
                    expectSymbol(u"*");
                } else {
                    item.column = takeName();
                }
                expectSymbol(u")");
                break;
            }
        }
        if (item.kind == SelectItem::Kind::Column) {
            item.column = takeName();
        }
        if (takeWord(u"as")) {
            item.alias = takeName();
        }
        return item;
    }

    ParsedCondition parseOr() {
        ParsedCondition first = parseAnd();
        if (!isWord(u"or")) {
            return first;
        }
        ParsedCondition node;
        node.kind = ParsedCondition::Kind::Or;
        node.children.push_back(std::move(first));
        while (takeWord(u"or")) {
            node.children.push_back(parseAnd());
        }
        return node;
    }

    ParsedCondition parseAnd() {
        ParsedCondition first = parseNot();
        if (!isWord(u"and")) {
            return first;
        }
        ParsedCondition node;
        node.kind = ParsedCondition::Kind::And;
        node.children.push_back(std::move(first));
        while (takeWord(u"and")) {
            node.children.push_back(parseNot());
        }
        return node;
    }

    ParsedCondition parseNot() {
        if (takeWord(u"not")) {
            ParsedCondition node;
            node.kind = ParsedCondition::Kind::Not;
            node.children.push_back(parseNot());
            return node;
        }
        if (takeSymbol(u"(")) {
            ParsedCondition inner = parseOr();
            expectSymbol(u")");
            return inner;
        }
        ParsedCondition node;
        node.left = parseOperand();
        if (takeWord(u"is")) {
            node.kind = ParsedCondition::Kind::IsNull;
            const bool negated = takeWord(u"not");
            expectWord(u"null");
            if (negated) {
                ParsedCondition outer;
                outer.kind = ParsedCondition::Kind::Not;
                outer.children.push_back(std::move(node));
                return outer;
            }
            return node;
        }
        const Token op = take();
        static const QStringList ops{u"="_s, u"<>"_s, u"<"_s, u">"_s, u"<="_s, u">="_s};
        if (op.kind != Token::Kind::Symbol || !ops.contains(op.text)) {
            fail();
        }
        node.op = op.text;
        node.right = parseOperand();
        return node;
    }

    Operand parseOperand() {
        const Token t = peek();
        switch (t.kind) {
        case Token::Kind::Number: {
            take();
            bool ok = false;
            const double value = t.text.toDouble(&ok);
            if (!ok) {
                fail();
            }
            return {{}, value};
        }
        case Token::Kind::Text:
            take();
            return {{}, t.text};
        case Token::Kind::Date: {
            take();
            const auto date = parseDateLiteral(t.text);
            if (!date) {
                fail();
            }
            return {{}, *date};
        }
        default:
            return {takeName(), {}};
        }
    }

    std::vector<Token> m_tokens;
    const QString& m_statement;
    std::size_t m_pos = 0;
};

int columnOf(const std::vector<ColumnInfo>& columns, const QString& name) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].name.compare(name, Qt::CaseInsensitive) == 0) {
            return static_cast<int>(i);
        }
    }
    unknownName(name);
}

Condition bind(const ParsedCondition& parsed, const std::vector<ColumnInfo>& columns) {
    Condition c;
    c.kind = static_cast<Condition::Kind>(parsed.kind);
    for (const auto& child : parsed.children) {
        c.children.push_back(bind(child, columns));
    }
    if (parsed.kind == ParsedCondition::Kind::IsNull || parsed.kind == ParsedCondition::Kind::Compare) {
        if (!parsed.left.name.isEmpty()) {
            c.leftColumn = columnOf(columns, parsed.left.name);
        }
        c.leftValue = parsed.left.value;
        if (!parsed.right.name.isEmpty()) {
            c.rightColumn = columnOf(columns, parsed.right.name);
        }
        c.rightValue = parsed.right.value;
        c.op = parsed.op;
    }
    return c;
}

// Three-valued, as SQL: a comparison with Null is unknown, and NOT unknown stays unknown.
std::optional<bool> evaluate(const Condition& c, ProviderRowset& row) {
    switch (c.kind) {
    case Condition::Kind::And: {
        bool unknown = false;
        for (const auto& child : c.children) {
            const auto v = evaluate(child, row);
            if (v && !*v) {
                return false;
            }
            unknown = unknown || !v;
        }
        return unknown ? std::nullopt : std::optional<bool>(true);
    }
    case Condition::Kind::Or: {
        bool unknown = false;
        for (const auto& child : c.children) {
            const auto v = evaluate(child, row);
            if (v && *v) {
                return true;
            }
            unknown = unknown || !v;
        }
        return unknown ? std::nullopt : std::optional<bool>(false);
    }
    case Condition::Kind::Not: {
        const auto v = evaluate(c.children.front(), row);
        return v ? std::optional<bool>(!*v) : std::nullopt;
    }
    case Condition::Kind::IsNull: {
        const vb::Variant v = c.leftColumn >= 0 ? row.value(c.leftColumn) : c.leftValue;
        return v.isNull();
    }
    case Condition::Kind::Compare: {
        const vb::Variant a = c.leftColumn >= 0 ? row.value(c.leftColumn) : c.leftValue;
        const vb::Variant b = c.rightColumn >= 0 ? row.value(c.rightColumn) : c.rightValue;
        const auto order = compareValues(a, b);
        if (!order) {
            return std::nullopt;
        }
        if (c.op == u"="_s) {
            return *order == 0;
        }
        if (c.op == u"<>"_s) {
            return *order != 0;
        }
        if (c.op == u"<"_s) {
            return *order < 0;
        }
        if (c.op == u">"_s) {
            return *order > 0;
        }
        if (c.op == u"<="_s) {
            return *order <= 0;
        }
        return *order >= 0;
    }
    }
    return std::nullopt;
}

std::unique_ptr<ProviderRowset> plan(const jetfile::Database& database, const Query& q,
                                     CursorTypeEnum cursorType) {
    std::unique_ptr<ProviderRowset> rows;
    if (q.subquery) {
        rows = plan(database, *q.subquery, cursorType);
    } else {
        try {
            (void)database.table(q.table);
        } catch (const jetfile::Error& e) {
            if (e.kind() == jetfile::Error::Kind::NotFound) {
                noSuchTable(q.table);
            }
            throw fromReader(e);
        }
        rows = std::make_unique<TableRowset>(database, q.table, cursorType);
    }
    if (q.where) {
        auto condition = std::make_shared<Condition>(bind(*q.where, rows->columns()));
        rows = std::make_unique<FilteredRowset>(std::move(rows), [condition](ProviderRowset& r) {
            return evaluate(*condition, r).value_or(false);
        });
    }

    const bool aggregate = std::any_of(q.items.begin(), q.items.end(), [](const SelectItem& i) {
        return i.kind == SelectItem::Kind::Count || i.kind == SelectItem::Kind::Max ||
               i.kind == SelectItem::Kind::Min;
    });
    if (aggregate) {
        // One row: every item must be an aggregate, as Jet demands without GROUP BY.
        std::vector<ColumnInfo> columns;
        std::vector<int> sources;
        int unnamed = 1000;
        for (const auto& item : q.items) {
            ColumnInfo info;
            if (item.kind == SelectItem::Kind::Count) {
                info.type = DataTypeEnum::adInteger;
                info.definedSize = 4;
                sources.push_back(-1);
            } else if (item.kind == SelectItem::Kind::Max || item.kind == SelectItem::Kind::Min) {
                const int column = columnOf(rows->columns(), item.column);
                info = rows->columns()[static_cast<std::size_t>(column)];
                info.properties.clear();
                sources.push_back(column);
            } else {
                throw Error(HResult::DB_E_ERRORSINCOMMAND,
                            u"You tried to execute a query that does not include the specified expression '"_s +
                                item.column + u"' as part of an aggregate function."_s,
                            kJetSource);
            }
            info.name = item.alias.isEmpty() ? u"Expr"_s + QString::number(unnamed++) : item.alias;
            info.attributes = adFldIsNullable | adFldMayBeNull | adFldFixed;
            columns.push_back(std::move(info));
        }
        std::int32_t count = 0;
        Row result(q.items.size(), vb::Null{});
        while (rows->next()) {
            ++count;
            for (std::size_t i = 0; i < q.items.size(); ++i) {
                if (sources[i] < 0) {
                    continue;
                }
                const vb::Variant v = rows->value(sources[i]);
                if (v.isNull()) {
                    continue;
                }
                const bool isMax = q.items[i].kind == SelectItem::Kind::Max;
                const auto order = result[i].isNull() ? std::optional<int>() : compareValues(v, result[i]);
                if (result[i].isNull() || (order && (isMax ? *order > 0 : *order < 0))) {
                    result[i] = v;
                }
            }
        }
        for (std::size_t i = 0; i < q.items.size(); ++i) {
            if (sources[i] < 0) {
                result[i] = count;
            }
        }
        if (!q.orderBy.empty()) {
            syntaxError(u"ORDER BY with an aggregate"_s);
        }
        return std::make_unique<MemoryRowset>(std::move(columns), std::vector<Row>{std::move(result)},
                                              cursorType);
    }

    if (!q.orderBy.empty() || q.top) {
        std::vector<SortedRowset::Key> keys;
        for (const auto& [name, descending] : q.orderBy) {
            keys.push_back({columnOf(rows->columns(), name), descending});
        }
        rows = std::make_unique<SortedRowset>(std::move(rows), std::move(keys), q.top);
    }

    if (q.items.size() == 1 && q.items.front().kind == SelectItem::Kind::Star) {
        return rows;
    }
    std::vector<ProjectedRowset::Output> outputs;
    for (const auto& item : q.items) {
        if (item.kind == SelectItem::Kind::Star) {
            for (std::size_t i = 0; i < rows->columns().size(); ++i) {
                outputs.push_back({static_cast<int>(i), {}});
            }
        } else {
            outputs.push_back({columnOf(rows->columns(), item.column), item.alias});
        }
    }
    return std::make_unique<ProjectedRowset>(std::move(rows), outputs);
}

} // namespace

std::unique_ptr<ProviderRowset> runSelect(const jetfile::Database& database, const QString& text,
                                          CursorTypeEnum cursorType) {
    Lexer lexer(text, text);
    Parser parser(lexer.tokens(), text);
    const Query query = parser.parseStatement();
    return plan(database, query, cursorType);
}

} // namespace ado::jet
