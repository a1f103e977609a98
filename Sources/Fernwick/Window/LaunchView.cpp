#include "Window/LaunchView.hpp"

#include <QCoreApplication>
#include <QPointer>
#include <QShowEvent>
#include <QTimer>
#include <chrono>

#include "Session/MainThread.hpp"
#include "Window/Log.hpp"

namespace {

/// Suspends painting until the window has its full-screen size, or until a timeout: a frame in the
/// initial size would be discarded and would delay the first visible one.
class PaintAfterResize : public QObject {
public:
    explicit PaintAfterResize(QWidget& window) : QObject(&window), window_(window) {
        window.setUpdatesEnabled(false);
        window.installEventFilter(this);
        QTimer::singleShot(timeout, this, &PaintAfterResize::paintAfterTimeout);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            paint();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr std::chrono::milliseconds timeout{100};

    void paintAfterTimeout() {
        qCDebug(windowLog) << "no full-screen size after" << timeout.count() << "ms";
        paint();
        // The pending update was dropped while updates were disabled.
        window_.repaint();
    }

    void paint() {
        window_.removeEventFilter(this);
        window_.setUpdatesEnabled(true);
        deleteLater();
    }

    QWidget& window_;
};

}  // namespace

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
    // Queued, so that the window is shown before it changes its state.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [window = QPointer<QWidget>(this->window())] {
            assertMainThread();
            if (!window.isNull() && !window->isFullScreen()) {
                qCDebug(windowLog) << "requesting full screen";
                new PaintAfterResize(*window);
                window->setWindowState(window->windowState() | Qt::WindowFullScreen);
            }
        },
        Qt::QueuedConnection);
}
