#pragma once

#include "platform/vb/Variant.h"

#include <QString>

#include <ostream>

// Readable values in GoogleTest's failure messages.
QT_BEGIN_NAMESPACE
void PrintTo(const QString& s, std::ostream* os);
void PrintTo(const QByteArray& b, std::ostream* os);
void PrintTo(const QDateTime& d, std::ostream* os);
QT_END_NAMESPACE

namespace vb {
void PrintTo(const Variant& v, std::ostream* os);
}
