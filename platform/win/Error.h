#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace win {

// A platform service that cannot do what was asked: no window system for a message box, a
// scripted message box with no answer left, a registry file that cannot be read.
class Error : public std::exception {
public:
    explicit Error(QString message) : m_message(std::move(message)), m_utf8(m_message.toUtf8()) {}
    const QString& message() const noexcept { return m_message; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

} // namespace win
