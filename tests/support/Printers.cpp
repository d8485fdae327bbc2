#include "tests/support/Printers.h"

QT_BEGIN_NAMESPACE
void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
void PrintTo(const QByteArray& b, std::ostream* os) { *os << "0x" << b.toHex().toStdString(); }
void PrintTo(const QDateTime& d, std::ostream* os) {
    *os << d.toString(Qt::ISODateWithMs).toStdString();
}
QT_END_NAMESPACE

namespace vb {
void PrintTo(const Variant& v, std::ostream* os) {
    *os << "Variant(type " << static_cast<int>(v.varType()) << ": "
        << v.toString().toStdString() << ')';
}
} // namespace vb
