#include "platform/capicom/Error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace capicom {

namespace {

struct HrEntry {
    Hr hr;
    const char16_t* text;
};

// The texts of <winerror.h> for the system codes, the component's own for its codes.
constexpr HrEntry kHrTexts[] = {
    {Hr::InvalidArg, u"The parameter is incorrect."},
    {Hr::InvalidData, u"The data is invalid."},
    {Hr::BadData, u"Bad Data."},
    {Hr::BadAlgId, u"Invalid algorithm specified."},
    {Hr::EncodeInvalidType, u"An encoding type that is not valid was used."},
    {Hr::InvalidAlgorithm,
     u"The algorithm value for the Name property of the Algorithm object is not valid."},
    {Hr::InvalidKeyLength,
     u"The key length value for the KeyLength property of the Algorithm object is not valid."},
    {Hr::EncryptNotInitialized, u"The EncryptedData object has not been initialized."},
    {Hr::EncryptInvalidType, u"The EncryptedData object is not a valid type."},
    {Hr::EncryptNoSecret, u"The secret of an EncryptedData object has not been initialized."},
    {Hr::NotSupported, u"The requested operation is not supported."},
    {Hr::Internal, u"An internal error occurred."},
};

} // namespace

QString HrText(Hr hr) {
    for (const HrEntry& entry : kHrTexts) {
        if (entry.hr == hr) {
            return QString::fromUtf16(entry.text);
        }
    }
    return u"Unknown error 0x%1."_s.arg(static_cast<std::uint32_t>(hr), 8, 16, QChar(u'0'));
}

Error::Error(Hr hr, const QString& source, const QString& description)
    : vb::RuntimeError(vb::ErrRecord{static_cast<std::int32_t>(hr), source, description, {}, 0}),
      m_code(hr) {}

void Raise(Hr hr, const QString& source, const QString& detail) {
    QString description = HrText(hr);
    if (!detail.isEmpty()) {
        description += u' ' + detail;
    }
    Error error(hr, source, description);
    vb::Err() = error.record();
    throw error;
}

} // namespace capicom
