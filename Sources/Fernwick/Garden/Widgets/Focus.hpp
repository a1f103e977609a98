#pragma once

class QWidget;

namespace Garden {

/// Call before hiding `hidden`. If it contains the focus widget, moves the focus to its window;
/// otherwise Qt would give it to the next control in the tab order.
void releaseFocus(const QWidget& hidden);

}  // namespace Garden
