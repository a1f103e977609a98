#pragma once

/// Whether the desktop has a session bus. Connecting without one makes libdbus start a bus.
[[nodiscard]] bool sessionBusExists();
