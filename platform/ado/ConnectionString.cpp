#include "platform/ado/ConnectionString.h"

#include "platform/ado/Error.h"

using namespace Qt::StringLiterals;

namespace ado {
namespace {

const QString kSource = u"Microsoft OLE DB Service Components"_s;

[[noreturn]] void badString() {
    throw Error(HResult::DB_E_BADINITSTRING,
                u"Format of the initialization string does not conform to the OLE DB specification."_s,
                kSource);
}

// Reads one keyword up to its "=", which "==" escapes; `pos` ends behind the "=".
QString readKeyword(QStringView text, qsizetype& pos) {
    QString keyword;
    while (pos < text.size()) {
        const QChar c = text[pos];
        if (c == u'=') {
            if (pos + 1 < text.size() && text[pos + 1] == u'=') {
                keyword += u'=';
                pos += 2;
                continue;
            }
            ++pos;
            return keyword.trimmed();
        }
        if (c == u';') {
            break;
        }
        keyword += c;
        ++pos;
    }
    if (keyword.trimmed().isEmpty() && (pos >= text.size() || text[pos] == u';')) {
        return {}; // an empty item such as ";;" or a trailing ";"
    }
    badString();
}

// Reads one value up to its ";"; `pos` ends behind the ";".
QString readValue(QStringView text, qsizetype& pos) {
    while (pos < text.size() && text[pos].isSpace()) {
        ++pos;
    }
    if (pos < text.size() && (text[pos] == u'\'' || text[pos] == u'"')) {
        const QChar quote = text[pos++];
        QString value;
        for (;;) {
            if (pos >= text.size()) {
                badString();
            }
            if (text[pos] == quote) {
                if (pos + 1 < text.size() && text[pos + 1] == quote) {
                    value += quote;
                    pos += 2;
                    continue;
                }
                ++pos;
                break;
            }
            value += text[pos++];
        }
        while (pos < text.size() && text[pos].isSpace()) {
            ++pos;
        }
        if (pos < text.size() && text[pos] != u';') {
            badString();
        }
        ++pos;
        return value;
    }
    const qsizetype end = text.indexOf(u';', pos);
    const qsizetype stop = end < 0 ? text.size() : end;
    QString value = text.mid(pos, stop - pos).trimmed().toString();
    pos = stop + 1;
    return value;
}

QString quoted(const QString& value) {
    const bool plain = !value.contains(u';') && !value.contains(u'\'') &&
                       !value.contains(u'"') && value.trimmed() == value;
    if (plain) {
        return value;
    }
    const QChar quote = value.contains(u'"') && !value.contains(u'\'') ? u'\'' : u'"';
    QString doubled = value;
    doubled.replace(quote, QString(2, quote));
    return quote + doubled + quote;
}

} // namespace

ConnectionString ConnectionString::parse(QStringView text) {
    ConnectionString result;
    qsizetype pos = 0;
    while (pos < text.size()) {
        QString keyword = readKeyword(text, pos);
        if (keyword.isEmpty()) {
            ++pos; // skip the ";" of an empty item
            continue;
        }
        QString value = readValue(text, pos);
        result.set(keyword, value);
    }
    return result;
}

bool ConnectionString::contains(QStringView keyword) const { return find(keyword).has_value(); }

std::optional<QString> ConnectionString::find(QStringView keyword) const {
    for (const auto& [key, value] : m_items) {
        if (key.compare(keyword, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    return std::nullopt;
}

QString ConnectionString::value(QStringView keyword) const { return find(keyword).value_or(QString()); }

void ConnectionString::set(const QString& keyword, const QString& value) {
    for (auto& item : m_items) {
        if (item.first.compare(keyword, Qt::CaseInsensitive) == 0) {
            item.second = value;
            return;
        }
    }
    m_items.emplace_back(keyword, value);
}

void ConnectionString::remove(QStringView keyword) {
    std::erase_if(m_items, [&](const auto& item) {
        return item.first.compare(keyword, Qt::CaseInsensitive) == 0;
    });
}

QString ConnectionString::toString() const {
    QString text;
    for (const auto& [key, value] : m_items) {
        if (!text.isEmpty()) {
            text += u';';
        }
        QString escapedKey = key;
        escapedKey.replace(u"="_s, u"=="_s);
        text += escapedKey + u'=' + quoted(value);
    }
    return text;
}

} // namespace ado
