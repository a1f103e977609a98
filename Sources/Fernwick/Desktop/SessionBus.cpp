#include "Desktop/SessionBus.hpp"

#include <QFileInfo>

bool Desktop::sessionBusExists() {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (!folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus")));
}
