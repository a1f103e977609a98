#pragma once

namespace Desktop {

/// Hides messages of Qt that are known to be harmless; all others reach stderr as usual. The user's
/// QT_LOGGING_RULES take precedence, and setting them shows the harmless messages without a
/// category as well.
///
/// Call it before `prepareEnvironment` and the QApplication. If Qt then cannot open a display, the
/// program prints one line that says so and exits with status 1, where Qt would abort. The line
/// names the variables of the environment as they are now. Qt's messages about a display that it
/// could not open are held back meanwhile, because it may open another one.
void filterQtMessages();

/// Call it when the QApplication exists. Prints the messages that were held back, apart from those
/// about Wayland: Qt tries Wayland first, and an X server is just as good.
void showHeldQtMessages();

/// Sets a function to call when the connection to the Wayland compositor is lost. Qt then prints a
/// message and calls _exit(), so that no destructor runs. Called in any thread.
void callBeforeWaylandExit(void (*function)());

}  // namespace Desktop
