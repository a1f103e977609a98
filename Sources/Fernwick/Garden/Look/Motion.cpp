#include "Garden/Look/Motion.hpp"

#include <QApplication>
#include <QDBusConnection>
#include <QPointer>
#include <QStyle>

#include "Desktop/SessionBus.hpp"
#include "Garden/Look/MotionSetting.hpp"

namespace Garden {

namespace {

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
