#pragma once

class QDBusConnection;
class QObject;

namespace Desktop {
class PortalSwitch;
}

namespace Garden {

/// How long a changed digit rolls, in milliseconds.
inline constexpr int digitRollDuration = 300;

/// How long the sheet takes to open or close, in milliseconds.
inline constexpr int sheetDuration = 180;

/// How long a menu takes to appear or disappear, in milliseconds.
inline constexpr int menuDuration = 120;
/// How long the card over an ended run takes to appear, in milliseconds.
inline constexpr int cardDuration = 150;

/// How long the hint about full screen takes to appear or disappear, in milliseconds.
inline constexpr int hintDuration = 240;

/// Whether the desktop or its style turns animations off. Follows changes while the program runs.
[[nodiscard]] bool reducedMotion();

/// The desktop's reduced-motion setting in the settings portal on `bus`, as a child of `parent`.
[[nodiscard]] Desktop::PortalSwitch* reducedMotionSetting(const QDBusConnection& bus,
                                                          QObject* parent);

}  // namespace Garden
