// nxApp: the message boxes, and the error record shown in them.
#include "frame/nxAppState.h"

#include "platform/vb/Err.h"
#include "platform/win/QtMessageBox.h"
#include "platform/win/WindowThreadMessageBox.h"

using namespace Qt::StringLiterals;

namespace {

QString titleWord(long flags) {
    switch (flags & win::mb::kIconMask) {
    case win::mb::kIconStop:
        return u"Errore!"_s;
    case win::mb::kIconQuestion:
        return u"Domanda"_s;
    case win::mb::kIconExclamation:
        return u"Avvertimento"_s;
    default:
        return u"Informazione"_s;
    }
}

QString title(long flags) {
    return nxApp::AppName() + u" - "_s + titleWord(flags);
}

// Hexadecimal in capitals, a negative number in its 32 bits: -2147217865 is 80040E37.
QString hex(std::int32_t number) {
    return QString::number(static_cast<std::uint32_t>(number), 16).toUpper();
}

// The pointer is the default while a box stands, and what it was afterwards.
class DefaultPointer {
public:
    DefaultPointer() : m_saved(nxApp::SetMousePointer(win::pointer::kDefault)) {}
    DefaultPointer(const DefaultPointer&) = delete;
    DefaultPointer& operator=(const DefaultPointer&) = delete;
    ~DefaultPointer() { nxApp::SetMousePointer(m_saved); }

private:
    std::int32_t m_saved;
};

} // namespace

long nxApp::showBox(win::MessageBoxRequest request) {
    State& s = state();
    if (!s.box) {
        // Asked from a worker thread (a conversion), the box is shown on the window thread.
        s.box =
            std::make_shared<win::WindowThreadMessageBox>(std::make_shared<win::QtMessageBox>());
    }
    const DefaultPointer pointer;
    return s.box->show(request);
}

long nxApp::MsgBox(const QString& text, long flags) {
    if (flags == 0) {
        flags = win::mb::kIconInformation;
    }
    win::MessageBoxRequest request;
    request.text = text;
    request.title = title(flags);
    request.flags = flags;
    return showBox(std::move(request));
}

long nxApp::MsgBoxEx(QObject* window, const QString& text, long flags, const QString& buttons) {
    return MsgBoxExHelp(window, text, flags & ~win::mb::kHelp, buttons, nullptr);
}

long nxApp::MsgBoxExHelp(QObject* window, const QString& text, long flags, const QString& buttons,
                         std::function<void()> callback) {
    State& s = state();
    win::MessageBoxRequest request;
    request.owner = window;
    request.text = text;
    request.title = title(flags);
    request.flags = flags;
    // The captions go to the buttons in the order they stand. The array keeps what an earlier
    // box left in the slots this one does not fill; a fifth caption has no slot.
    const QStringList pieces = buttons.isEmpty() ? QStringList() : buttons.split(u'|');
    for (qsizetype i = 0; i <= std::min<qsizetype>(4, pieces.size() - 1); ++i) {
        if (i >= qsizetype(s.captions.size())) {
            vb::Raise(vb::errors::kSubscriptOutOfRange, u"nxApp"_s, {});
        }
        s.captions[static_cast<std::size_t>(i)] = pieces[i];
    }
    request.captions = QStringList(s.captions.begin(), s.captions.end());
    if (callback) {
        request.flags |= win::mb::kHelp;
        request.help = std::move(callback);
        request.beep = true;
    }
    return showBox(std::move(request));
}

void nxApp::CompleteErr(const QString& text) {
    vb::ErrRecord& err = vb::Err();
    err.Description += u" ("_s + text + u')';
}

void nxApp::ErrorBox(const QString& label, bool silent, bool spare) {
    Q_UNUSED(spare);
    nxError& e = LastError();
    e.Fill(0, label, {}, {}, 0, true);
    const std::int32_t n = e.Number();
    QString text = e.Description() + u"\r\n\r\n"_s + e.Source();
    if (n != 0) {
        text += u" (errore "_s + QString::number(n);
        if (n < 0 || n > 9) {
            text += u", 0x"_s + hex(n);
        }
        text += u')';
    }
    if (!silent) {
        // A run-time error gets the stop sign; a database or component error (negative, or
        // 3000 on) the exclamation mark.
        MsgBox(text, n == 0 ? 64 : (n >= 1 && n <= 2999 ? 16 : 48));
    }
}

void nxApp::FriendlyErrorBox(const QString& text, bool silent) {
    nxError& e = LastError();
    e.Fill(0, {}, text, {}, 0, true);
    if (!silent) {
        const std::int32_t n = e.Number();
        MsgBox(u"Errore '"_s + QString::number(n) + u"' (HEX "_s + hex(n) + u")\r\n\r\n"_s +
                   e.Description(),
               n >= 1 && n <= 2999 ? 16 : 48);
    }
}

void nxApp::FillError() {
    LastError().Fill(0, {}, {}, {}, 0, true);
}

bool nxApp::CancelEnd() {
    return MsgBox(u"Confermi l'uscita dal programma?"_s, 36) == win::id::kNo;
}
