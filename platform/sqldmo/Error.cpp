#include "platform/sqldmo/Error.h"

namespace sqldmo {

Error::Error(Hr hr, const QString& source, const QString& description)
    : vb::RuntimeError(vb::ErrRecord{static_cast<std::int32_t>(hr), source, description, {}, 0}),
      m_code(hr) {}

void Raise(Hr hr, const QString& source, const QString& description) {
    Error error(hr, source, description);
    vb::Err() = error.record();
    throw error;
}

} // namespace sqldmo
