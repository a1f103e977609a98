#include "MainWindow/LaunchView.hpp"

#include <QCoreApplication>
#include <QPointer>
#include <QShowEvent>

#include "Session/MainThread.hpp"

LaunchView::LaunchView(QWidget* parent) : QWidget(parent) {
    resize(0, 0);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LaunchView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (configured_) {
        return;
    }
    configured_ = true;
    // The wait lets the window finish appearing before it is asked to grow.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [window = QPointer<QWidget>(this->window())] {
            assertMainThread();
            if (!window.isNull() && !window->isFullScreen()) {
                window->setWindowState(window->windowState() | Qt::WindowFullScreen);
            }
        },
        Qt::QueuedConnection);
}
