#include "Window/LaunchView.hpp"

#include <QCoreApplication>
#include <QPointer>
#include <QShowEvent>
#include <QTimer>
#include <chrono>

#include "Session/MainThread.hpp"

namespace {

/// A frame at the first size would never be seen, and the first one in full screen would wait for
/// it: nothing is painted until the window has its new size, or the desktop takes too long.
class PaintsOnceResized : public QObject {
public:
    explicit PaintsOnceResized(QWidget& window) : QObject(&window), window_(window) {
        window.setUpdatesEnabled(false);
        window.installEventFilter(this);
        QTimer::singleShot(patience, this, &PaintsOnceResized::giveUp);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            paint();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr std::chrono::milliseconds patience{100};

    void giveUp() {
        paint();
        // What was to be painted is known already and would not be asked for anew.
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
    // The wait lets the window finish appearing before it is asked to grow.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [window = QPointer<QWidget>(this->window())] {
            assertMainThread();
            if (!window.isNull() && !window->isFullScreen()) {
                new PaintsOnceResized(*window);
                window->setWindowState(window->windowState() | Qt::WindowFullScreen);
            }
        },
        Qt::QueuedConnection);
}
