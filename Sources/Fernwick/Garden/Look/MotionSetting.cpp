#include "Garden/Look/MotionSetting.hpp"

#include <array>

namespace Garden {

namespace {

// Each desktop says it in its own words; the last is the one they are agreeing on.
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

MotionSetting::MotionSetting(const QDBusConnection& bus, QObject* parent)
    : Desktop::PortalSwitch(bus, settings, parent) {}

}  // namespace Garden
