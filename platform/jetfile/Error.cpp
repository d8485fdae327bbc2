#include "platform/jetfile/Error.h"

using namespace Qt::Literals::StringLiterals;

namespace jetfile {

Error::Error(Kind kind, const QString& file, const QString& reason,
             std::optional<std::uint32_t> page)
    : m_kind(kind), m_file(file), m_reason(reason), m_page(page) {
    m_message = file + u": "_s + reason;
    if (page) {
        m_message += u" (page "_s + QString::number(*page) + u")"_s;
    }
    m_utf8 = m_message.toUtf8();
}

} // namespace jetfile
