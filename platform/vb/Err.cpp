#include "platform/vb/Err.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vb {

ErrRecord& Err() noexcept {
    thread_local ErrRecord record;
    return record;
}

RuntimeError::RuntimeError(ErrRecord record)
    : m_record(std::move(record)), m_what(m_record.Description.toUtf8()) {}

void Raise(std::int32_t number, const QString& source, const QString& description,
           const QString& helpFile, std::int32_t helpContext) {
    ErrRecord& err = Err();
    err.Number = number;
    err.Source = source;
    err.Description = description.isEmpty() ? ErrorText(number) : description;
    err.HelpFile = helpFile;
    err.HelpContext = helpContext;
    throw RuntimeError(err);
}

QString ErrorText(std::int32_t number) {
    switch (number) {
    case errors::kInvalidProcedureCall:
        return u"Chiamata di routine o argomento non validi"_s;
    case errors::kOverflow:
        return u"Overflow"_s;
    case errors::kSubscriptOutOfRange:
        return u"Indice non incluso nell'intervallo"_s;
    case errors::kTypeMismatch:
        return u"Tipo non corrispondente"_s;
    case errors::kFileNotFound:
        return u"Impossibile trovare il file"_s;
    case errors::kFileAlreadyOpen:
        return u"File già aperto"_s;
    case errors::kPermissionDenied:
        return u"Autorizzazione negata"_s;
    case errors::kPathFileAccessError:
        return u"Errore di accesso al percorso/file"_s;
    case errors::kPathNotFound:
        return u"Impossibile trovare il percorso"_s;
    case errors::kObjectRequired:
        return u"Necessario oggetto"_s;
    case errors::kInvalidUseOfNull:
        return u"Utilizzo non valido di Null"_s;
    default:
        return u"Errore definito dall'applicazione o dall'oggetto"_s;
    }
}

} // namespace vb
