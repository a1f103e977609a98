#pragma once

namespace Desktop {

/// Hides messages of Qt that are known to be harmless; all others reach stderr as usual. The user's
/// QT_LOGGING_RULES take precedence, and setting them shows the harmless messages without a
/// category as well. Call it before creating the QApplication.
void filterQtMessages();

}  // namespace Desktop
