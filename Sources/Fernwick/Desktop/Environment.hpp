#pragma once

namespace Desktop {

/// Sets all environment variables that this program changes for the libraries it uses. Call it
/// before the first thread starts: setenv() in one thread races with getenv() in others. The only
/// later change is `setActivationToken`.
void prepareEnvironment();

/// Whether Qt will connect to a Wayland compositor rather than to an X server, as far as the
/// environment tells.
[[nodiscard]] bool usesWayland();

/// Whether Qt is connected to a Wayland compositor. Needs the QGuiApplication.
[[nodiscard]] bool isOnWayland();

/// Whether there is a D-Bus session bus. Connecting without one makes libdbus start a bus.
[[nodiscard]] bool sessionBusExists();

}  // namespace Desktop
