#include "MainWindow/SessionBus.hpp"

#include <QFileInfo>
#include <QString>
#include <QtGlobal>

void leaveMissingSessionBusAlone() {
    constexpr const char* address = "DBUS_SESSION_BUS_ADDRESS";
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const bool hasUserBus =
        !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus"));
    if (qEnvironmentVariableIsEmpty(address) && !hasUserBus) {
        qputenv(address, "disabled:");
    }
}
