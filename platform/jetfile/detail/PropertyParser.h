#pragma once

#include "platform/jetfile/Schema.h"
#include "platform/jetfile/detail/PageSource.h"

#include <QByteArray>

#include <vector>

namespace jetfile::detail {

// Parses an object's LvProp blob ("MR2" format): a list of property names, then one block of
// values for the object itself and one per column. Every chunk and value length is checked to
// move forward and to stay inside its block. `what` and `page` say where the blob came from.
std::vector<PropertyMap> parseProperties(const PageSource& source, const QByteArray& blob,
                                         const QString& what, std::uint32_t page);

} // namespace jetfile::detail
