#include "Garden/Widgets/Focus.hpp"

#include <QWidget>

namespace Garden {

void releaseFocus(const QWidget& hidden) {
    // QApplication::focusWidget() is null while another application is active; the window still
    // remembers its focus widget and would give it the focus on activation.
    const QWidget* focus = hidden.window()->focusWidget();
    if (focus != nullptr && (focus == &hidden || hidden.isAncestorOf(focus))) {
        hidden.window()->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace Garden
