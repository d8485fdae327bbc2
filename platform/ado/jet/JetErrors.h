#pragma once

#include "platform/ado/Error.h"

#include <QString>

namespace jetfile {
class Error;
}

namespace ado::jet {

// The errors of the Jet provider, with the codes and the texts the Jet engine gives.
inline const QString kJetSource = QStringLiteral("Microsoft JET Database Engine");

[[noreturn]] void fileNotFound(const QString& path);
[[noreturn]] void badPassword();
[[noreturn]] void fileInUse(const QString& path);
[[noreturn]] void unreadable(const QString& path, const jetfile::Error& cause);
[[noreturn]] void noSuchTable(const QString& name);
[[noreturn]] void unknownName(const QString& name);
[[noreturn]] void syntaxError(const QString& statement);
[[noreturn]] void readOnly(const QString& what);

// A jetfile failure met while reading rows or definitions.
Error fromReader(const jetfile::Error& cause);

} // namespace ado::jet
