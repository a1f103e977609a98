#include "Garden/Focus.hpp"

#include <QApplication>
#include <QWidget>

namespace Garden {

void releaseFocus(const QWidget& leaving) {
    const QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && (focus == &leaving || leaving.isAncestorOf(focus))) {
        leaving.window()->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace Garden
