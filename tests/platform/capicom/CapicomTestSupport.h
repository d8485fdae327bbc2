#pragma once

#include "platform/capicom/Bstr.h"
#include "platform/capicom/EncryptedData.h"

#include <QByteArray>
#include <QString>

#include <ostream>

namespace capicom {
void PrintTo(const Bstr& s, std::ostream* os);
}

// The documented scheme written out again, independently of the code under test: SHA-1 from Qt,
// triple DES straight from OpenSSL, DER lengths by the documented size arithmetic.
namespace byhand {

QByteArray utf16le(const QString& text);
// SHA-1(password as UTF-16LE ‖ salt), stretched with the 0x36 / 0x5C buffers: the first 24 bytes.
QByteArray tripleDesKey(const QString& password, const QByteArray& salt);
QByteArray ede3Cbc(bool encrypt, const QByteArray& key, const QByteArray& iv,
                   const QByteArray& data);
// A whole triple-DES message: version 0x00020001, 0x6603, 192, then IV, salt and cipher text.
QByteArray message(const QString& password, const QString& text, const QByteArray& iv,
                   const QByteArray& salt);

} // namespace byhand

// Fixed IV and salt, so that a message can be compared byte for byte.
inline const QByteArray kIv = QByteArray::fromHex("0102030405060708");
inline const QByteArray kSalt = QByteArray::fromHex("101112131415161718191a1b1c1d1e1f");
capicom::EncryptedData::RandomSource fixedRandom();

// The password of the suite's config.ini values.
inline const QString kSuitePassword = QStringLiteral("brnzolvet52");
