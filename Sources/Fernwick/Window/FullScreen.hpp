#pragma once

/// Toggles full screen for the active window, or for the first visible main window when none is
/// active. Does nothing without either.
void toggleFullScreen();
