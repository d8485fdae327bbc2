#include "platform/ado/Error.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ado {
namespace {

struct AdoText {
    HResult code;
    const char16_t* text;
};

// ADO's own messages, as its English run time words them.
constexpr std::array kAdoTexts{
    AdoText{HResult::adErrInvalidArgument,
            u"Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."},
    AdoText{HResult::adErrNoCurrentRecord,
            u"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record."},
    AdoText{HResult::adErrIllegalOperation, u"Operation is not allowed in this context."},
    AdoText{HResult::adErrFeatureNotAvailable,
            u"Object or provider is not capable of performing requested operation."},
    AdoText{HResult::adErrItemNotFound,
            u"Item cannot be found in the collection corresponding to the requested name or ordinal."},
    AdoText{HResult::adErrObjectInCollection, u"Object is already in collection. Cannot append."},
    AdoText{HResult::adErrDataConversion,
            u"Application uses a value of the wrong type for the current operation."},
    AdoText{HResult::adErrObjectClosed, u"Operation is not allowed when the object is closed."},
    AdoText{HResult::adErrObjectOpen, u"Operation is not allowed when the object is open."},
    AdoText{HResult::adErrProviderNotFound,
            u"Provider cannot be found. It may not be properly installed."},
    AdoText{HResult::adErrInvalidParamInfo,
            u"Parameter object is improperly defined. Inconsistent or incomplete information was provided."},
    AdoText{HResult::adErrInvalidConnection,
            u"The connection cannot be used to perform this operation. It is either closed or invalid in this context."},
    AdoText{HResult::DB_E_CANTFETCHBACKWARDS, u"Rowset does not support fetching backward."},
};

QByteArray whatText(std::int32_t hresult, const QString& description) {
    return (u"0x"_s + QString::number(static_cast<std::uint32_t>(hresult), 16).toUpper() +
            u": "_s + description)
        .toUtf8();
}

} // namespace

Error::Error(HResult hresult, QString description, QString source, QString sqlState,
             std::int32_t nativeError)
    : Error(toNumber(hresult), std::move(description), std::move(source), std::move(sqlState),
            nativeError) {}

Error::Error(std::int32_t hresult, QString description, QString source, QString sqlState,
             std::int32_t nativeError)
    : m_hresult(hresult), m_description(std::move(description)), m_source(std::move(source)),
      m_sqlState(std::move(sqlState)), m_nativeError(nativeError),
      m_what(whatText(hresult, m_description)) {}

Error& Error::addRelated(Error other) {
    m_related.push_back(std::move(other));
    return *this;
}

QString adoText(HResult code) {
    for (const auto& entry : kAdoTexts) {
        if (entry.code == code) {
            return QString::fromUtf16(entry.text);
        }
    }
    return {};
}

void raise(HResult code, const QString& source) { throw Error(code, adoText(code), source); }

} // namespace ado
