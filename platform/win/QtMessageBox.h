#pragma once

#include "platform/win/MessageBox.h"

namespace win {

// The box on the screen, a small dialog of our own: the title given, the icon of the style flags,
// the system's buttons or the caller's captions (with "&" access keys), a Help button that runs
// its callback and leaves the box standing. Escape and the close button answer Cancel when the
// box has one, OK when OK is its only button, and nothing otherwise, as the system's box does.
// Needs a QApplication and the window thread; elsewhere it throws win::Error.
class QtMessageBox : public MessageBoxService {
public:
    long show(const MessageBoxRequest& request) override;
};

} // namespace win
