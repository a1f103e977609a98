#include "Garden/Motion.hpp"

#include <QApplication>
#include <QDBusConnection>
#include <QFileInfo>
#include <QPointer>
#include <QStyle>

#include "Garden/MotionSetting.hpp"

namespace Garden {

namespace {

// Without one to connect to, the bus library would start a bus of its own.
bool sessionBusExists() {
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

bool desktopAsksForStillness() {
    static QPointer<MotionSetting> setting;
    if (setting == nullptr && sessionBusExists()) {
        setting = new MotionSetting(QDBusConnection::sessionBus(), qApp);
    }
    return setting != nullptr && setting->asksForStillness();
}

}  // namespace

bool reducedMotion() {
    return desktopAsksForStillness() ||
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

}  // namespace Garden
