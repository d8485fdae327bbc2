#include "engine/ConfigCipher.h"

#include "platform/capicom/EncryptedData.h"
#include "platform/capicom/Utilities.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace engine {

namespace {

// VB's Trim: blanks only, not tabs or line ends.
bool blankAfterTrim(const QString& text) {
    for (const QChar c : text) {
        if (c != u' ') {
            return false;
        }
    }
    return true;
}

} // namespace

QString Encrypt_Text(const QString& text, const QString& secret, bool base64) {
    if (blankAfterTrim(text)) {
        return {};
    }
    capicom::EncryptedData data;
    data.setContent(text);
    data.Algorithm().setName(capicom::CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    data.SetSecret(secret, capicom::CAPICOM_SECRET_PASSWORD);
    const capicom::Bstr message = data.Encrypt(capicom::CAPICOM_ENCODE_BINARY);
    if (!base64) {
        return message.toString();
    }
    QString encoded = capicom::Utilities().Base64Encode(message);
    encoded.remove(u'\r');
    encoded.remove(u'\n');
    return encoded;
}

QString Decrypt_Text(const QString& text, const QString& secret, bool base64) {
    if (blankAfterTrim(text)) {
        return {};
    }
    capicom::Bstr message(text);
    if (base64) {
        QStringList pieces;
        for (qsizetype at = 0; at < text.size(); at += 64) {
            pieces << text.mid(at, 64);
        }
        message = capicom::Utilities().Base64Decode(pieces.join(u"\r\n"_s));
    }
    capicom::EncryptedData data;
    data.Algorithm().setName(capicom::CAPICOM_ENCRYPTION_ALGORITHM_3DES);
    data.SetSecret(secret, capicom::CAPICOM_SECRET_PASSWORD);
    data.Decrypt(message);
    return data.Content().toString();
}

} // namespace engine
