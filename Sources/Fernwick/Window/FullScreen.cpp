#include "Window/FullScreen.hpp"

#include <QApplication>
#include <QWidget>

#include "Desktop/X11FullScreen.hpp"

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
    QWidget* window = windowToToggle();
    if (window != nullptr &&
        !(window->isMaximized() &&
          Desktop::requestFullScreenOnX11(*window->windowHandle(), !window->isFullScreen()))) {
        window->setWindowState(window->windowState() ^ Qt::WindowFullScreen);
    }
}
