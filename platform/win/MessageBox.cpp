#include "platform/win/MessageBox.h"

namespace win {

QList<long> buttonsFor(long flags) {
    QList<long> buttons;
    switch (flags & mb::kButtonMask) {
    case mb::kOkCancel:
        buttons = {id::kOk, id::kCancel};
        break;
    case mb::kAbortRetryIgnore:
        buttons = {id::kAbort, id::kRetry, id::kIgnore};
        break;
    case mb::kYesNoCancel:
        buttons = {id::kYes, id::kNo, id::kCancel};
        break;
    case mb::kYesNo:
        buttons = {id::kYes, id::kNo};
        break;
    case mb::kRetryCancel:
        buttons = {id::kRetry, id::kCancel};
        break;
    case mb::kCancelTryContinue:
        buttons = {id::kCancel, id::kTryAgain, id::kContinue};
        break;
    default: // 0 and the values the system does not know show an OK button
        buttons = {id::kOk};
        break;
    }
    if ((flags & mb::kHelp) != 0) {
        buttons.append(id::kHelp);
    }
    return buttons;
}

} // namespace win
