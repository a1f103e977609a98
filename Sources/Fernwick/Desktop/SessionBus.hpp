#pragma once

namespace Desktop {

/// Whether there is a D-Bus session bus. Connecting without one makes libdbus start a bus.
[[nodiscard]] bool sessionBusExists();

}  // namespace Desktop
