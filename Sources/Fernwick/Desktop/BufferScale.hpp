#pragma once

class QBackingStore;

namespace Desktop {

/// Corrects the device pixel ratio of the buffer that a window was last painted on. Returns whether
/// it was wrong; the window must be painted again then.
///
/// Up to Qt 6.8 at least, Qt on Wayland keeps a window's buffers with the ratio that they were made
/// with, and reuses them by their size in pixels. A window in full screen has the same size in
/// pixels at every scale of the screen, so after a change of the scale Qt may go on painting at the
/// old one.
///
/// Call only after the first frame: before it there is no buffer.
[[nodiscard]] bool correctBufferScale(QBackingStore& store);

}  // namespace Desktop
