#pragma once

#include <QByteArray>

namespace Desktop {

/// On X11, tells the desktop that the start with this startup notification ID has succeeded, so
/// that it shows no busy cursor any longer. Qt does that for the ID with which the process was
/// started, but not for one that arrives over D-Bus. Does nothing with an empty ID.
void endX11StartupNotification(const QByteArray& id);

}  // namespace Desktop
