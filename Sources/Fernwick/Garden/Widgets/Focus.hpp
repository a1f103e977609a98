#pragma once

class QWidget;

namespace Garden {

/// Gives the keyboard focus to the window if it lies inside `leaving`, which is about to be hidden:
/// the toolkit would otherwise pass it on to whatever control comes next.
void releaseFocus(const QWidget& leaving);

}  // namespace Garden
