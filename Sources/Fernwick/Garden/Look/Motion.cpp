#include "Garden/Look/Motion.hpp"

#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <array>

#include "Desktop/Environment.hpp"
#include "Desktop/PortalSwitch.hpp"

namespace Garden {

namespace {

// The settings of GNOME and of KDE, and the cross-desktop one.
constexpr std::array<Desktop::PortalSwitch::Setting, 3> settings{{
    {"org.gnome.desktop.interface", "enable-animations",
     [](const QVariant& value) { return value.userType() == QMetaType::Bool && !value.toBool(); }},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor",
     [](const QVariant& value) {
         bool isNumber = false;
         return value.toDouble(&isNumber) == 0 && isNumber;
     }},
    {"org.freedesktop.appearance", "reduced-motion",
     [](const QVariant& value) { return value.toUInt() == 1; }},
}};

}  // namespace

Desktop::PortalSwitch* reducedMotionSetting(const QDBusConnection& bus, QObject* parent) {
    return new Desktop::PortalSwitch(bus, settings, parent);
}

bool reducedMotion() {
    static QPointer<Desktop::PortalSwitch> setting;
    if (setting == nullptr && Desktop::sessionBusExists()) {
        setting = reducedMotionSetting(QDBusConnection::sessionBus(), qApp);
    }
    return (setting != nullptr && setting->isOn()) ||
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

}  // namespace Garden
