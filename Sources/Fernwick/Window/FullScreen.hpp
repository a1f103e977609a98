#pragma once

/// Takes the active window to full screen or back; without an active one, the first visible window
/// that can be a main window; without any, does nothing.
void toggleFullScreen();
