#pragma once

namespace Desktop {

/// Whether translucent windows are blended with what is behind them. On X11 that takes a running
/// compositing manager, without which their transparent pixels are black; it may start and end at
/// any time. True on other platforms.
[[nodiscard]] bool isComposited();

}  // namespace Desktop
