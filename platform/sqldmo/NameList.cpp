#include "platform/sqldmo/NameList.h"

#include "platform/sqldmo/Error.h"

using namespace Qt::StringLiterals;

namespace sqldmo {

QString NameList::Item(std::int32_t ordinal) const {
    if (ordinal < 1 || ordinal > Count()) {
        Raise(Hr::ItemNotFound, QString::fromUtf16(kSourceDmo),
              u"[SQL-DMO]NameList.Item: the ordinal %1 is out of range (the list has %2 names)."_s
                  .arg(QString::number(ordinal), QString::number(Count())));
    }
    return m_names.at(ordinal - 1);
}

} // namespace sqldmo
