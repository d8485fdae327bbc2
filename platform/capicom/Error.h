#pragma once

#include "platform/vb/Err.h"

#include <QString>

#include <cstdint>

namespace capicom {

// The HRESULTs the component raises: its own CAPICOM_E_* codes and the CryptoAPI and COM codes
// that come through from below it. The original names are macros in <winerror.h>, so the
// enumerators carry names of their own.
enum class Hr : std::uint32_t {
    InvalidArg = 0x80070057,            // E_INVALIDARG
    InvalidData = 0x8007000D,           // HRESULT_FROM_WIN32(ERROR_INVALID_DATA): not Base64
    BadData = 0x80090005,               // NTE_BAD_DATA: wrong password, damaged cipher text
    BadAlgId = 0x80090008,              // NTE_BAD_ALGID
    EncodeInvalidType = 0x80880100,     // CAPICOM_E_ENCODE_INVALID_TYPE
    InvalidAlgorithm = 0x80880270,      // CAPICOM_E_INVALID_ALGORITHM
    InvalidKeyLength = 0x80880271,      // CAPICOM_E_INVALID_KEY_LENGTH
    EncryptNotInitialized = 0x80880290, // CAPICOM_E_ENCRYPT_NOT_INITIALIZED
    EncryptInvalidType = 0x80880291,    // CAPICOM_E_ENCRYPT_INVALID_TYPE: not such a message
    EncryptNoSecret = 0x80880292,       // CAPICOM_E_ENCRYPT_NO_SECRET
    NotSupported = 0x80880900,          // CAPICOM_E_NOT_SUPPORTED
    Internal = 0x80880911,              // CAPICOM_E_INTERNAL
};

// The objects, as failures name them in Source.
inline constexpr char16_t kSourceEncryptedData[] = u"CAPICOM.EncryptedData";
inline constexpr char16_t kSourceAlgorithm[] = u"CAPICOM.Algorithm";
inline constexpr char16_t kSourceUtilities[] = u"CAPICOM.Utilities";

// The text that goes with a code, as the component reports it.
QString HrText(Hr hr);

// A failed call on a CAPICOM object. It is a run-time error like the one a failing COM call
// raises in the original: Number is the HRESULT as a signed 32-bit value (NTE_BAD_DATA is
// -2146893819), Source names the object.
class Error : public vb::RuntimeError {
public:
    Error(Hr hr, const QString& source, const QString& description);
    Hr code() const noexcept { return m_code; }
    std::int32_t hresult() const noexcept { return record().Number; }
    const QString& description() const noexcept { return record().Description; }
    const QString& source() const noexcept { return record().Source; }

private:
    Hr m_code;
};

// Fills the thread's ambient error (Err), as a failing COM call does, and throws. The
// description is the code's own text, followed by `detail` when one is given.
[[noreturn]] void Raise(Hr hr, const QString& source, const QString& detail = {});

} // namespace capicom
