#include "Desktop/SessionRestart.hpp"

#include <QGuiApplication>
#include <QSessionManager>

namespace Desktop {

void restartWithoutArguments() {
    const auto setCommand = [](QSessionManager& manager) {
        manager.setRestartCommand({QCoreApplication::arguments().constFirst()});
    };
    // A session manager asks for one of them or both.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp, setCommand);
    QObject::connect(qGuiApp, &QGuiApplication::saveStateRequest, qGuiApp, setCommand);
}

}  // namespace Desktop
