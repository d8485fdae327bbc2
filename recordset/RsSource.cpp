#include "recordset/RsSource.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace rs {

namespace {

constexpr QStringView kFrom = u" From ";
constexpr QStringView kWhere = u" Where ";
constexpr QStringView kOrderBy = u" Order By ";

// 0-based position of `what` at or after `from`, without regard to case; -1 when absent.
qsizetype find(const QString& text, QStringView what, qsizetype from) {
    return text.indexOf(what, from, Qt::CaseInsensitive);
}

// Takes "[" off the end and "]" off the start, as many as there are, end first.
QString stripBrackets(QString text) {
    while (text.endsWith(u']')) {
        text.chop(1);
    }
    while (text.startsWith(u'[')) {
        text.remove(0, 1);
    }
    return text;
}

} // namespace

QString TrimBlanks(const QString& text) {
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text.at(first) == u' ') {
        ++first;
    }
    while (last > first && text.at(last - 1) == u' ') {
        --last;
    }
    return text.mid(first, last - first);
}

void SplitSource(const QString& source, const std::function<bool(const QString&)>& isTable,
                 SourceParts& parts) {
    parts.base = TrimBlanks(source);
    if (isTable && isTable(parts.base)) {
        parts.name = parts.base;
        return;
    }
    parts.where.clear();
    parts.order.clear();

    const QString& sql = parts.base;
    const qsizetype from = find(sql, kFrom, 0);
    const qsizetype tableStart = from >= 0 ? from + kFrom.size() : 0;
    const qsizetype where = find(sql, kWhere, tableStart);
    const qsizetype order = find(sql, kOrderBy, tableStart);

    if (where >= 0) {
        const qsizetype start = where + kWhere.size();
        const qsizetype end = order > where ? order : sql.size();
        parts.where = sql.mid(start, std::max<qsizetype>(end - start, 0));
    }
    if (order >= 0) {
        parts.order = sql.mid(order + kOrderBy.size());
    }
    // The earlier of the two keywords found ends the base statement.
    qsizetype cut = -1;
    if (where >= 0 && order >= 0) {
        cut = std::min(where, order);
    } else {
        cut = std::max(where, order);
    }
    if (cut >= 0) {
        parts.base = sql.left(cut);
    }

    const QString rest = parts.base.mid(tableStart);
    parts.name = rest.contains(u" join ", Qt::CaseInsensitive) ? rest : stripBrackets(rest);
}

QString JoinSource(const SourceParts& parts) {
    QString sql = parts.base;
    if (!TrimBlanks(parts.where).isEmpty()) {
        sql += kWhere.toString() + parts.where;
    }
    if (!TrimBlanks(parts.order).isEmpty()) {
        sql += kOrderBy.toString() + parts.order;
    }
    return sql;
}

QString CountQueryText(const SourceParts& parts, const QString& extra) {
    QString sql = u"SELECT COUNT(*) AS RecNum FROM ("_s + parts.base;
    if (!parts.where.isEmpty()) {
        sql += u" WHERE "_s + parts.where;
    }
    if (!extra.isEmpty()) {
        sql += (parts.where.isEmpty() ? u" WHERE "_s : u" AND "_s) + extra;
    }
    return sql + u") AS TempTab"_s;
}

QString MaxQueryText(const SourceParts& parts, const QString& field, bool min) {
    QString sql = u"SELECT "_s + (min ? u"MIN"_s : u"MAX"_s) + u"("_s + field +
                  u") AS Num FROM ("_s + parts.base;
    if (!parts.where.isEmpty()) {
        sql += u" WHERE "_s + parts.where;
    }
    return sql + u") AS TempTab"_s;
}

QString IndexOrderText(const std::vector<IndexColumn>& columns) {
    QStringList pieces;
    pieces.reserve(static_cast<qsizetype>(columns.size()));
    for (const IndexColumn& c : columns) {
        pieces.append(u"["_s + c.name + (c.descending ? u"] desc"_s : u"] asc"_s));
    }
    return pieces.join(u", "_s);
}

} // namespace rs
