#include "frame/Paths.h"

#include <QDir>

namespace frame {

qsizetype lastSeparator(const QString& path) {
    return std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/'));
}

QChar nativeSeparator() {
    return QDir::separator();
}

QChar separatorFor(const QString& path) {
    const qsizetype at = lastSeparator(path);
    return at >= 0 ? path[at] : nativeSeparator();
}

QString unitOf(const QString& p) {
    if (p.size() >= 2 && isSeparator(p[0]) && isSeparator(p[1])) {
        qsizetype first = -1;
        for (qsizetype i = 2; i < p.size(); ++i) {
            if (isSeparator(p[i])) {
                if (first >= 0) {
                    return p.left(i);
                }
                first = i;
            }
        }
        return p;
    }
    for (qsizetype i = 0; i < p.size() && !isSeparator(p[i]); ++i) {
        if (p[i] == u':') {
            return p.left(i + 1);
        }
    }
    return {};
}

QString fsPath(const QString& path) {
    if (nativeSeparator() == u'/') {
        return QString(path).replace(u'\\', u'/');
    }
    return path;
}

} // namespace frame
