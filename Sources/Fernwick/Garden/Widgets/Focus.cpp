#include "Garden/Widgets/Focus.hpp"

#include <QWidget>

namespace Garden {

void releaseFocus(const QWidget& leaving) {
    // Also while another window is active: this one keeps its focus for when it is back.
    const QWidget* focus = leaving.window()->focusWidget();
    if (focus != nullptr && (focus == &leaving || leaving.isAncestorOf(focus))) {
        leaving.window()->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace Garden
