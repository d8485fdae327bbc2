#pragma once

#include <QString>

#include <cstdint>

// The record of the last failure, behind nxApp::LastError(): a copy that stays when the ambient
// error (vb::Err()) has been cleared. Each field reads with no argument and is set with one.
class nxError {
public:
    nxError() { Clear(false); }

    // Number 0, empty texts, Description "Errore sconosciuto"; then, with `replace`, Replace().
    void Clear(bool replace = false);

    std::int32_t Number() const noexcept { return m_number; }
    void Number(std::int32_t value) noexcept { m_number = value; }
    const QString& Source() const noexcept { return m_source; }
    void Source(const QString& value) { m_source = value; }
    const QString& Description() const noexcept { return m_description; }
    void Description(const QString& value) { m_description = value; }
    const QString& HelpFile() const noexcept { return m_helpFile; }
    void HelpFile(const QString& value) { m_helpFile = value; }
    std::int32_t HelpContext() const noexcept { return m_helpContext; }
    void HelpContext(std::int32_t value) noexcept { m_helpContext = value; }

    // Stores the five values. With `fromErr` each value given as 0 or empty is taken from the
    // ambient error instead, so a caller's label survives beside the run time's number and text.
    // Without it the values stand as given: the way to record a failure of logic.
    void Fill(std::int32_t number, const QString& source, const QString& description,
              const QString& helpFile = {}, std::int32_t helpContext = 0, bool fromErr = true);
    // Clears the ambient error and writes the five values into it.
    void Replace() const;

private:
    std::int32_t m_number = 0;
    QString m_source;
    QString m_description;
    QString m_helpFile;
    std::int32_t m_helpContext = 0;
};
