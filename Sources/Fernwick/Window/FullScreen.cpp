#include "Window/FullScreen.hpp"

#include <QApplication>
#include <QWidget>

namespace {

bool canBeMainWindow(const QWidget& widget) {
    return widget.isVisible() && !widget.isMinimized() && widget.windowType() == Qt::Window;
}

QWidget* windowToToggle() {
    if (QWidget* active = QApplication::activeWindow();
        active != nullptr && canBeMainWindow(*active)) {
        return active;
    }
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (canBeMainWindow(*widget)) {
            return widget;
        }
    }
    return nullptr;
}

}  // namespace

void toggleFullScreen() {
    if (QWidget* window = windowToToggle(); window != nullptr) {
        window->setWindowState(window->windowState() ^ Qt::WindowFullScreen);
    }
}
