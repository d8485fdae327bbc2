#include "platform/capicom/Utilities.h"

#include "platform/capicom/Base64.h"
#include "platform/capicom/Error.h"

namespace capicom {

QString Utilities::Base64Encode(const Bstr& SrcString) const {
    return detail::encodeBase64Lines(SrcString.bytes());
}

Bstr Utilities::Base64Decode(const QString& EncodedString) const {
    auto decoded = detail::decodeBase64(EncodedString);
    if (!decoded) {
        Raise(Hr::InvalidData, QString::fromUtf16(kSourceUtilities));
    }
    return Bstr::fromBytes(std::move(*decoded));
}

} // namespace capicom
