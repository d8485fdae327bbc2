#include "frame/nxError.h"

#include "platform/vb/Err.h"

using namespace Qt::StringLiterals;

void nxError::Clear(bool replace) {
    m_number = 0;
    m_source.clear();
    m_description = u"Errore sconosciuto"_s;
    m_helpFile.clear();
    m_helpContext = 0;
    if (replace) {
        Replace();
    }
}

void nxError::Fill(std::int32_t number, const QString& source, const QString& description,
                   const QString& helpFile, std::int32_t helpContext, bool fromErr) {
    if (fromErr) {
        const vb::ErrRecord& err = vb::Err();
        m_number = number != 0 ? number : err.Number;
        m_source = !source.isEmpty() ? source : err.Source;
        m_description = !description.isEmpty() ? description : err.Description;
        m_helpFile = !helpFile.isEmpty() ? helpFile : err.HelpFile;
        m_helpContext = helpContext != 0 ? helpContext : err.HelpContext;
        return;
    }
    m_number = number;
    m_source = source;
    m_description = description;
    m_helpFile = helpFile;
    m_helpContext = helpContext;
}

void nxError::Replace() const {
    vb::ErrRecord& err = vb::Err();
    err.Clear();
    err.Number = m_number;
    err.Source = m_source;
    err.Description = m_description;
    err.HelpFile = m_helpFile;
    err.HelpContext = m_helpContext;
}
