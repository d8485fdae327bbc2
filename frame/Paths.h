#pragma once

#include <QString>

// Path helpers for the library's classes: a backslash and a slash both separate folders, on every
// platform (see nxSys).
namespace frame {

inline bool isSeparator(QChar c) {
    return c == u'\\' || c == u'/';
}

// The index of the last separator, -1 when there is none.
qsizetype lastSeparator(const QString& path);

// The platform's own separator: '\' on Windows, '/' elsewhere.
QChar nativeSeparator();

// The separator to add to `path`: the one it already uses last, else the platform's.
QChar separatorFor(const QString& path);

// The unit of a path as it stands: "\\server\share" of a UNC path, "C:" of a drive path, empty
// for anything else. A colon counts only before the first separator.
QString unitOf(const QString& path);

// The path for the file system: on platforms whose separator is '/', backslashes become slashes,
// so that a path written the system's way names the file it means and never a file whose name
// holds backslashes.
QString fsPath(const QString& path);

} // namespace frame
