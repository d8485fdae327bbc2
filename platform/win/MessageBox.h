#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace win {

// The system's message-box numbers: buttons in the low four bits, the icon in bits 4-6, the
// default button in bits 8-9, the Help button in bit 14.
namespace mb {
inline constexpr long kOk = 0;
inline constexpr long kOkCancel = 1;
inline constexpr long kAbortRetryIgnore = 2;
inline constexpr long kYesNoCancel = 3;
inline constexpr long kYesNo = 4;
inline constexpr long kRetryCancel = 5;
inline constexpr long kCancelTryContinue = 6;
inline constexpr long kButtonMask = 0x0F;
inline constexpr long kIconStop = 16;
inline constexpr long kIconQuestion = 32;
inline constexpr long kIconExclamation = 48;
inline constexpr long kIconInformation = 64;
inline constexpr long kIconMask = 112;
inline constexpr long kDefaultButtonMask = 0x300;
inline constexpr long kHelp = 0x4000;
} // namespace mb

// The results: the button that closed the box. IDHELP never closes one; a script uses it to
// press the Help button.
namespace id {
inline constexpr long kOk = 1;
inline constexpr long kCancel = 2;
inline constexpr long kAbort = 3;
inline constexpr long kRetry = 4;
inline constexpr long kIgnore = 5;
inline constexpr long kYes = 6;
inline constexpr long kNo = 7;
inline constexpr long kHelp = 9;
inline constexpr long kTryAgain = 10;
inline constexpr long kContinue = 11;
} // namespace id

// One box to show.
struct MessageBoxRequest {
    QObject* owner = nullptr; // the window the box belongs to; may be null
    QString text;
    QString title;
    long flags = 0;
    // Captions for the buttons, in the order they stand, the first to the first button. Empty
    // keeps the system's own; when given, as many buttons as there are captions (at most four)
    // get theirs, an empty caption included. "&" marks the access key.
    QStringList captions;
    // With mb::kHelp in the flags: what the Help button runs. The box stays standing.
    std::function<void()> help;
    // The beep that goes with the icon, before the box opens.
    bool beep = false;
};

// The one road to a message box: a window on the screen, or a script.
class MessageBoxService {
public:
    virtual ~MessageBoxService() = default;
    // Shows the box and returns the button that closed it (id::...).
    virtual long show(const MessageBoxRequest& request) = 0;
};

// The buttons a flag value asks for, in the order they stand (the Help button last), as id::
// values.
QList<long> buttonsFor(long flags);

} // namespace win
