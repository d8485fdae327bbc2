#pragma once

#include <QString>

// The cipher of config.ini values, which the suite reads back: triple DES under a password in the
// component's binary message, then Base64 without line ends.
namespace engine {

// The password of the suite's system databases, also the key of config.ini.
inline constexpr char16_t kConfigSecret[] = u"brnzolvet52";

// A text blank after trimming blanks gives "" without passing the cipher. With `base64` the
// message is Base64 with every CR and LF removed, otherwise the binary message as a string.
// Raises capicom::Error when the cipher fails.
QString Encrypt_Text(const QString& text, const QString& secret, bool base64);

// The reverse: with `base64` the text is cut into lines of 64 and decoded first. A text blank
// after trimming gives "". Raises capicom::Error for text that is not such a message or a wrong
// password; the caller records it.
QString Decrypt_Text(const QString& text, const QString& secret, bool base64);

} // namespace engine
