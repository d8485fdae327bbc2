#include "platform/win/Profile.h"

#include "platform/win/Cp1252.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace win {
namespace {

constexpr qint64 kMaxProfileBytes = 16 * 1024 * 1024;

struct Line {
    QString text;
    QString eol; // "\r\n", "\n", or empty for a last line without one
};

enum class Kind { Blank, Comment, Section, Key, Other };

struct Parsed {
    Kind kind = Kind::Other;
    QString name; // the section's or the key's, trimmed
    QString value;
    qsizetype indent = 0;
};

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

QString trimBlanks(QStringView text) {
    qsizetype b = 0;
    qsizetype e = text.size();
    while (b < e && isBlank(text[b])) {
        ++b;
    }
    while (e > b && isBlank(text[e - 1])) {
        --e;
    }
    return text.mid(b, e - b).toString();
}

Parsed parse(const QString& line) {
    Parsed p;
    while (p.indent < line.size() && isBlank(line[p.indent])) {
        ++p.indent;
    }
    const QStringView t = QStringView(line).mid(p.indent);
    if (trimBlanks(t).isEmpty()) {
        p.kind = Kind::Blank;
    } else if (t.startsWith(u';')) {
        p.kind = Kind::Comment;
    } else if (t.startsWith(u'[')) {
        const qsizetype close = t.lastIndexOf(u']');
        if (close > 0) {
            p.kind = Kind::Section;
            p.name = trimBlanks(t.mid(1, close - 1));
        }
    } else {
        const qsizetype eq = t.indexOf(u'=');
        p.kind = Kind::Key;
        p.name = trimBlanks(eq < 0 ? t : t.left(eq));
        p.value = eq < 0 ? QString() : trimBlanks(t.mid(eq + 1));
    }
    return p;
}

bool same(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

struct File {
    std::vector<Line> lines;
    bool exists = false;
    bool readable = true;

    // Index of the first header of `section`, or -1.
    qsizetype section(const QString& name) const {
        const QString wanted = trimBlanks(name);
        for (qsizetype i = 0; i < qsizetype(lines.size()); ++i) {
            const Parsed p = parse(lines[i].text);
            if (p.kind == Kind::Section && same(p.name, wanted)) {
                return i;
            }
        }
        return -1;
    }
    // One past the last line of the section whose header stands at `header`.
    qsizetype sectionEnd(qsizetype header) const {
        qsizetype i = header + 1;
        while (i < qsizetype(lines.size()) && parse(lines[i].text).kind != Kind::Section) {
            ++i;
        }
        return i;
    }
    qsizetype key(qsizetype header, const QString& name) const {
        const QString wanted = trimBlanks(name);
        for (qsizetype i = header + 1, end = sectionEnd(header); i < end; ++i) {
            const Parsed p = parse(lines[i].text);
            if (p.kind == Kind::Key && same(p.name, wanted)) {
                return i;
            }
        }
        return -1;
    }
};

File load(const QString& path) {
    File file;
    QFile in(path);
    file.exists = in.exists();
    if (!file.exists) {
        return file;
    }
    if (!in.open(QIODevice::ReadOnly) || in.size() > kMaxProfileBytes) {
        file.readable = false;
        return file;
    }
    const QString text = fromCp1252(in.readAll());
    qsizetype start = 0;
    while (start < text.size()) {
        const qsizetype nl = text.indexOf(u'\n', start);
        if (nl < 0) {
            file.lines.push_back({text.mid(start), {}});
            break;
        }
        const bool cr = nl > start && text[nl - 1] == u'\r';
        file.lines.push_back(
            {text.mid(start, nl - start - (cr ? 1 : 0)), cr ? u"\r\n"_s : u"\n"_s});
        start = nl + 1;
    }
    return file;
}

bool save(const File& file, const QString& path) {
    QByteArray bytes;
    for (const Line& line : file.lines) {
        bytes += toCp1252(line.text);
        bytes += toCp1252(line.eol);
    }
    QSaveFile out(path);
    return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.commit();
}

QString listBuffer(const QStringList& names, std::uint32_t size, std::uint32_t* count) {
    QString out;
    if (size < 2) {
        *count = 0;
        return size == 1 ? QString(1, QChar(0)) : QString();
    }
    for (const QString& name : names) {
        if (std::uint32_t(out.size() + name.size() + 1) > size - 1) {
            const qsizetype room = qsizetype(size) - 2 - out.size();
            out += name.left(room > 0 ? room : 0);
            out += QChar(0);
            out += QChar(0);
            *count = size - 2;
            return out;
        }
        out += name;
        out += QChar(0);
    }
    *count = std::uint32_t(out.size() > 0 ? out.size() : 0);
    out += QChar(0);
    return out;
}

QString valueBuffer(QString value, std::uint32_t size, std::uint32_t* count) {
    if (size == 0) {
        *count = 0;
        return {};
    }
    value.truncate(qsizetype(size) - 1);
    *count = std::uint32_t(value.size());
    return value + QChar(0);
}

QString unquoted(const QString& value) {
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') &&
        value.back() == value.front()) {
        return value.mid(1, value.size() - 2);
    }
    return value;
}

void removeLines(File& file, qsizetype from, qsizetype to) {
    file.lines.erase(file.lines.begin() + from, file.lines.begin() + to);
}

} // namespace

QString readProfileString(const std::optional<QString>& section, const std::optional<QString>& key,
                          const QString& defaultValue, std::uint32_t size, const QString& path,
                          std::uint32_t* count) {
    std::uint32_t ignored = 0;
    count = count != nullptr ? count : &ignored;
    const File file = load(path);
    if (!section) {
        QStringList names;
        for (const Line& line : file.lines) {
            const Parsed p = parse(line.text);
            if (p.kind == Kind::Section) {
                names.append(p.name);
            }
        }
        return listBuffer(names, size, count);
    }
    const qsizetype header = file.section(*section);
    if (!key) {
        QStringList names;
        if (header >= 0) {
            for (qsizetype i = header + 1, end = file.sectionEnd(header); i < end; ++i) {
                const Parsed p = parse(file.lines[i].text);
                if (p.kind == Kind::Key) {
                    names.append(p.name);
                }
            }
        }
        return listBuffer(names, size, count);
    }
    const qsizetype at = header < 0 || trimBlanks(*key).isEmpty() ? -1 : file.key(header, *key);
    if (at < 0) {
        QString fallback = defaultValue;
        while (!fallback.isEmpty() && isBlank(fallback.back())) {
            fallback.chop(1);
        }
        return valueBuffer(fallback, size, count);
    }
    return valueBuffer(unquoted(parse(file.lines[at].text).value), size, count);
}

bool writeProfileString(const std::optional<QString>& section, const std::optional<QString>& key,
                        const std::optional<QString>& value, const QString& path) {
    if (!section) {
        // All three missing is the call that flushes the system's cache; we keep none.
        return !key && !value;
    }
    File file = load(path);
    if (!file.readable) {
        return false;
    }
    const qsizetype header = file.section(*section);
    if (!key || !value) {
        if (header < 0) {
            return true;
        }
        if (!key) {
            removeLines(file, header, file.sectionEnd(header));
        } else {
            const qsizetype at = file.key(header, *key);
            if (at < 0) {
                return true;
            }
            removeLines(file, at, at + 1);
        }
        return save(file, path);
    }
    if (!file.lines.empty() && file.lines.back().eol.isEmpty()) {
        file.lines.back().eol = u"\r\n"_s;
    }
    const QString name = trimBlanks(*key);
    if (header < 0) {
        file.lines.push_back({u'[' + trimBlanks(*section) + u']', u"\r\n"_s});
        file.lines.push_back({name + u'=' + *value, u"\r\n"_s});
        return save(file, path);
    }
    const qsizetype at = file.key(header, name);
    if (at >= 0) {
        const Parsed p = parse(file.lines[at].text);
        file.lines[at].text = file.lines[at].text.left(p.indent) + p.name + u'=' + *value;
    } else {
        qsizetype after = file.sectionEnd(header);
        while (after > header + 1 && parse(file.lines[after - 1].text).kind == Kind::Blank) {
            --after;
        }
        file.lines.insert(file.lines.begin() + after, Line{name + u'=' + *value, u"\r\n"_s});
    }
    return save(file, path);
}

} // namespace win
