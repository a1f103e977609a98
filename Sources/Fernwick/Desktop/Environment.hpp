#pragma once

namespace Desktop {

/// Sets all environment variables that this program changes for the libraries it uses. Call it
/// before the first thread starts: setenv() in one thread races with getenv() in others. The only
/// later change is `setActivationToken`.
void prepareEnvironment();

/// Whether there is a D-Bus session bus. Connecting without one makes libdbus start a bus.
[[nodiscard]] bool sessionBusExists();

}  // namespace Desktop
