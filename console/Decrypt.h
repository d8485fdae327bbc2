#pragma once

#include <QString>

#include <cstdint>

// What Decrypt_Text gives: the plain text, or, when the text could not be decoded, an empty
// text and the failure (already recorded in nxApp::LastError() under "frmMain.Decrypt_Text()",
// with no box).
struct DecryptResult {
    QString text;
    bool ok = true;
    std::int32_t number = 0;
    QString description;
};

// Decodes a text that was encrypted with a password (triple DES over the cryptographic
// component's envelope), from Base64 when `base64`. A blank text gives an empty one.
DecryptResult Decrypt_Text(const QString& text, const QString& password, bool base64);
