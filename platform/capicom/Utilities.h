#pragma once

#include "platform/capicom/Bstr.h"

#include <QString>

namespace capicom {

// The component's Utilities object, the two members the system uses.
class Utilities {
public:
    // The string's bytes in Base64, in lines of 64 characters each ended by CR LF (the last
    // one too): the layout of Encrypt's Base64 form. A binary string is encoded byte for byte.
    QString Base64Encode(const Bstr& SrcString) const;

    // The bytes the Base64 text stands for, as a binary string; line ends and blanks anywhere
    // are ignored. Raises InvalidData for text that is not Base64.
    Bstr Base64Decode(const QString& EncodedString) const;
};

} // namespace capicom
