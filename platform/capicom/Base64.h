#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace capicom::detail {

// Standard Base64 (+ / =) in lines of 64 characters, each line ended by CR LF, the last one
// included: the layout of the component's Base64 output.
QString encodeBase64Lines(QByteArrayView data);

// The bytes of Base64 text. Blanks, tabs, CR and LF anywhere are ignored (the text may have
// lost its line ends, or had them put back at other places); '=' padding may be missing.
// Nothing for any other character or an impossible length.
std::optional<QByteArray> decodeBase64(QStringView text);

} // namespace capicom::detail
