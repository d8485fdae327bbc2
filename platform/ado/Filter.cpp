#include "platform/ado/Filter.h"

#include "platform/ado/Compare.h"
#include "platform/ado/Error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ado {

enum class FilterOp { Equal, NotEqual, Less, Greater, LessEqual, GreaterEqual, Like };
enum class LikeKind { Exact, Prefix, Contains };

struct FilterExpression::Node {
    enum class Kind { And, Or, Clause } kind = Kind::Clause;
    std::vector<std::shared_ptr<const Node>> children;
    int column = -1;
    FilterOp op = FilterOp::Equal;
    vb::Variant value;
    LikeKind like = LikeKind::Exact;
};

namespace {

using Node = FilterExpression::Node;
using NodePtr = std::shared_ptr<const Node>;

[[noreturn]] void invalid() { raise(HResult::adErrInvalidArgument, u"ADODB.Recordset"_s); }

class FilterParser {
public:
    FilterParser(QStringView text, const std::vector<ColumnInfo>& columns)
        : m_text(text), m_columns(columns) {}

    NodePtr parseAll() {
        NodePtr root = parseOr();
        skipBlanks();
        if (m_pos != m_text.size()) {
            invalid();
        }
        return root;
    }

private:
    NodePtr parseOr() {
        auto first = parseAnd();
        if (!peekWord(u"or")) {
            return first;
        }
        auto node = std::make_shared<Node>();
        node->kind = Node::Kind::Or;
        node->children.push_back(first);
        while (takeWord(u"or")) {
            node->children.push_back(parseAnd());
        }
        return node;
    }

    NodePtr parseAnd() {
        auto first = parseFactor();
        if (!peekWord(u"and")) {
            return first;
        }
        auto node = std::make_shared<Node>();
        node->kind = Node::Kind::And;
        node->children.push_back(first);
        while (takeWord(u"and")) {
            node->children.push_back(parseFactor());
        }
        return node;
    }

    NodePtr parseFactor() {
        skipBlanks();
        if (m_pos < m_text.size() && m_text[m_pos] == u'(') {
            ++m_pos;
            auto inner = parseOr();
            skipBlanks();
            if (m_pos >= m_text.size() || m_text[m_pos] != u')') {
                invalid();
            }
            ++m_pos;
            return inner;
        }
        return parseClause();
    }

    NodePtr parseClause() {
        auto node = std::make_shared<Node>();
        node->column = columnIndex(readFieldName());
        node->op = readOperator();
        node->value = readValue();
        if (node->op == FilterOp::Like) {
            setLikePattern(*node);
        }
        return node;
    }

    QString readFieldName() {
        skipBlanks();
        if (m_pos < m_text.size() && m_text[m_pos] == u'[') {
            const qsizetype close = m_text.indexOf(u']', m_pos);
            if (close < 0) {
                invalid();
            }
            QString name = m_text.mid(m_pos + 1, close - m_pos - 1).toString();
            m_pos = close + 1;
            return name;
        }
        const qsizetype start = m_pos;
        while (m_pos < m_text.size() &&
               (m_text[m_pos].isLetterOrNumber() || m_text[m_pos] == u'_' ||
                m_text[m_pos] == u'.' || m_text[m_pos] == u'$' || m_text[m_pos] == u'@')) {
            ++m_pos;
        }
        if (start == m_pos) {
            invalid();
        }
        return m_text.mid(start, m_pos - start).toString();
    }

    int columnIndex(const QString& name) const {
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            if (m_columns[i].name.compare(name, Qt::CaseInsensitive) == 0) {
                return static_cast<int>(i);
            }
        }
        invalid();
    }

    FilterOp readOperator() {
        skipBlanks();
        const QStringView rest = m_text.mid(m_pos);
        struct Sym {
            QStringView text;
            FilterOp op;
        };
        // Two-character operators first, so that "<=" is not read as "<".
        static constexpr Sym symbols[] = {{u"<>", FilterOp::NotEqual},
                                          {u"<=", FilterOp::LessEqual},
                                          {u">=", FilterOp::GreaterEqual},
                                          {u"=", FilterOp::Equal},
                                          {u"<", FilterOp::Less},
                                          {u">", FilterOp::Greater}};
        for (const auto& s : symbols) {
            if (rest.startsWith(s.text)) {
                m_pos += s.text.size();
                return s.op;
            }
        }
        if (takeWord(u"like")) {
            return FilterOp::Like;
        }
        invalid();
    }

    vb::Variant readValue() {
        skipBlanks();
        if (m_pos >= m_text.size()) {
            invalid();
        }
        const QChar c = m_text[m_pos];
        if (c == u'\'') {
            return readQuoted();
        }
        if (c == u'#') {
            const qsizetype close = m_text.indexOf(u'#', m_pos + 1);
            if (close < 0) {
                invalid();
            }
            const auto date = parseDateLiteral(m_text.mid(m_pos + 1, close - m_pos - 1));
            if (!date) {
                invalid();
            }
            m_pos = close + 1;
            return vb::Variant(*date);
        }
        if (takeWord(u"null")) {
            return vb::Null{};
        }
        if (takeWord(u"true")) {
            return true;
        }
        if (takeWord(u"false")) {
            return false;
        }
        return readNumber();
    }

    vb::Variant readQuoted() {
        QString value;
        ++m_pos;
        for (;;) {
            if (m_pos >= m_text.size()) {
                invalid();
            }
            if (m_text[m_pos] == u'\'') {
                if (m_pos + 1 < m_text.size() && m_text[m_pos + 1] == u'\'') {
                    value += u'\'';
                    m_pos += 2;
                    continue;
                }
                ++m_pos;
                return value;
            }
            value += m_text[m_pos++];
        }
    }

    vb::Variant readNumber() {
        const qsizetype start = m_pos;
        if (m_pos < m_text.size() && m_text[m_pos] == u'$') {
            ++m_pos;
        }
        while (m_pos < m_text.size() &&
               (m_text[m_pos].isDigit() || m_text[m_pos] == u'.' || m_text[m_pos] == u'-' ||
                m_text[m_pos] == u'+' || m_text[m_pos] == u'e' || m_text[m_pos] == u'E')) {
            ++m_pos;
        }
        QStringView digits = m_text.mid(start, m_pos - start);
        if (digits.startsWith(u'$')) {
            digits = digits.mid(1);
        }
        bool ok = false;
        const double value = digits.toDouble(&ok);
        if (!ok) {
            invalid();
        }
        return value;
    }

    static void setLikePattern(Node& node) {
        const QString* pattern = node.value.get<QString>();
        if (pattern == nullptr) {
            invalid();
        }
        const QString& text = *pattern;
        auto isWild = [](QChar c) { return c == u'*' || c == u'%'; };
        if (text.size() == 1 && isWild(text.front())) {
            node.like = LikeKind::Prefix;
            node.value = QString();
            return;
        }
        const bool leading = !text.isEmpty() && isWild(text.front());
        const bool trailing = !text.isEmpty() && isWild(text.back());
        if (leading && !trailing) {
            invalid(); // a wildcard only at the start is refused
        }
        const qsizetype cut = (leading ? 1 : 0) + (trailing ? 1 : 0);
        const QString core = text.mid(leading ? 1 : 0, text.size() - cut);
        if (std::any_of(core.begin(), core.end(), isWild)) {
            invalid(); // and so is one in the middle
        }
        node.like = leading ? LikeKind::Contains : (trailing ? LikeKind::Prefix : LikeKind::Exact);
        node.value = core;
    }

    void skipBlanks() {
        while (m_pos < m_text.size() && m_text[m_pos].isSpace()) {
            ++m_pos;
        }
    }

    bool peekWord(QStringView word) {
        skipBlanks();
        const QStringView rest = m_text.mid(m_pos);
        if (!rest.startsWith(word, Qt::CaseInsensitive)) {
            return false;
        }
        return rest.size() == word.size() || !(rest[word.size()].isLetterOrNumber() ||
                                               rest[word.size()] == u'_');
    }

    bool takeWord(QStringView word) {
        if (!peekWord(word)) {
            return false;
        }
        m_pos += word.size();
        return true;
    }

    QStringView m_text;
    const std::vector<ColumnInfo>& m_columns;
    qsizetype m_pos = 0;
};

bool clauseMatches(const Node& node, const vb::Variant& value) {
    if (node.value.isNull()) {
        // "Field = NULL" and "Field <> NULL" test for null; other operators never match.
        if (node.op == FilterOp::Equal) {
            return value.isNull();
        }
        return node.op == FilterOp::NotEqual && !value.isNull();
    }
    if (node.op == FilterOp::Like) {
        if (value.isNull()) {
            return false;
        }
        const QString text = value.toString();
        const QString& pattern = *node.value.get<QString>();
        switch (node.like) {
        case LikeKind::Exact:
            return text.compare(pattern, Qt::CaseInsensitive) == 0;
        case LikeKind::Prefix:
            return text.startsWith(pattern, Qt::CaseInsensitive);
        case LikeKind::Contains:
            return text.contains(pattern, Qt::CaseInsensitive);
        }
        return false;
    }
    const auto order = compareValues(value, node.value);
    if (!order) {
        return false;
    }
    switch (node.op) {
    case FilterOp::Equal:
        return *order == 0;
    case FilterOp::NotEqual:
        return *order != 0;
    case FilterOp::Less:
        return *order < 0;
    case FilterOp::Greater:
        return *order > 0;
    case FilterOp::LessEqual:
        return *order <= 0;
    case FilterOp::GreaterEqual:
        return *order >= 0;
    case FilterOp::Like:
        break;
    }
    return false;
}

bool evaluate(const Node& node, const std::function<vb::Variant(int)>& valueOf) {
    switch (node.kind) {
    case Node::Kind::And:
        for (const auto& child : node.children) {
            if (!evaluate(*child, valueOf)) {
                return false;
            }
        }
        return true;
    case Node::Kind::Or:
        for (const auto& child : node.children) {
            if (evaluate(*child, valueOf)) {
                return true;
            }
        }
        return false;
    case Node::Kind::Clause:
        return clauseMatches(node, valueOf(node.column));
    }
    return false;
}

} // namespace

FilterExpression FilterExpression::parse(QStringView text, const std::vector<ColumnInfo>& columns) {
    FilterExpression result;
    if (text.trimmed().isEmpty()) {
        return result;
    }
    FilterParser parser(text, columns);
    result.m_root = parser.parseAll();
    return result;
}

bool FilterExpression::matches(const std::function<vb::Variant(int)>& valueOf) const {
    return m_root == nullptr || evaluate(*m_root, valueOf);
}

} // namespace ado
