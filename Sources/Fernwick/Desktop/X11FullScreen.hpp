#pragma once

class QWindow;

namespace Desktop {

/// Asks the X11 window manager to change the full-screen state of a visible window and nothing
/// else. QWindow::setWindowStates() would first remove the maximised state and then set it again,
/// and the window manager would forget the size that the window had before it was maximised.
/// Returns false on other platforms than X11.
[[nodiscard]] bool requestFullScreenOnX11(const QWindow& window, bool fullScreen);

}  // namespace Desktop
