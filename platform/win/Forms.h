#pragma once

namespace win {

// Closes every top-level window of the process; the windows' own close handling decides what
// happens to them. Nothing happens in a process without a screen.
void closeAllForms() noexcept;

} // namespace win
