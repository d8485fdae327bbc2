#include "console/Decrypt.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"
#include "frame/nxError.h"

#include "platform/capicom/Bstr.h"
#include "platform/capicom/EncryptedData.h"
#include "platform/capicom/Utilities.h"

#include <QStringList>

using namespace Qt::StringLiterals;

DecryptResult Decrypt_Text(const QString& text, const QString& password, bool base64) {
    DecryptResult result;
    if (text.trimmed().isEmpty()) {
        return result;
    }
    try {
        capicom::Bstr message(text);
        if (base64) {
            // The decoder reads the lines of 64 characters that the encoder wrote.
            QStringList lines;
            for (qsizetype at = 0; at < text.size(); at += 64) {
                lines.append(text.mid(at, 64));
            }
            message = capicom::Utilities().Base64Decode(lines.join(u"\r\n"_s));
        }
        capicom::EncryptedData data;
        data.Algorithm().setName(3); // triple DES
        data.SetSecret(password, 0); // the secret is a password
        data.Decrypt(message);
        result.text = data.Content().toString();
    } catch (...) {
        frame::trapCurrentException(u"frmMain.Decrypt_Text()", true);
        result = DecryptResult{QString(), false, nxApp::LastError().Number(),
                               nxApp::LastError().Description()};
    }
    return result;
}
