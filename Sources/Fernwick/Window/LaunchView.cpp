#include "Window/LaunchView.hpp"

#include <QCoreApplication>
#include <QPainter>
#include <QScreen>
#include <QShowEvent>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <functional>
#include <utility>

#include "Desktop/Environment.hpp"
#include "Garden/Look/Palette.hpp"
#include "Session/MainThread.hpp"
#include "Window/Log.hpp"

namespace {

/// How long a window manager gets to resize the window.
constexpr std::chrono::milliseconds longestWait{100};

/// Covers the window with the ground's colour. Calls `painted` when that frame has been committed
/// and `shown` once the Wayland compositor has presented it. mutter gives a window its place only
/// then; one that enters full screen earlier has no place to go back to.
class FirstFrame : public QWidget {
public:
    FirstFrame(QWidget& window, std::function<void()> painted, std::function<void()> shown)
        : QWidget(&window), onPainted_(std::move(painted)), shown_(std::move(shown)) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setGeometry(window.rect());
        raise();
        show();
        window.windowHandle()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // Qt's Wayland plugin sends it with the compositor's next frame.
        if (event->type() == QEvent::UpdateRequest && painted_) {
            finish();
        }
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), Garden::night);
        // Queued, so that this frame has been committed.
        QMetaObject::invokeMethod(
            this,
            [this] {
                painted_ = true;
                window()->windowHandle()->requestUpdate();
                if (onPainted_) {
                    std::exchange(onPainted_, nullptr)();
                }
            },
            Qt::QueuedConnection);
        // Qt drops the request if the compositor takes longer than 0.1 s for the frame.
        QTimer::singleShot(timeout, this, &FirstFrame::finish);
    }

private:
    static constexpr std::chrono::milliseconds timeout{400};

    void finish() {
        if (shown_) {
            window()->windowHandle()->removeEventFilter(this);
            deleteLater();
            std::exchange(shown_, nullptr)();
        }
    }

    std::function<void()> onPainted_;
    std::function<void()> shown_;
    bool painted_ = false;
};

}  // namespace

LaunchView::LaunchView(QWidget* parent) : QWidget(parent) {
    resize(0, 0);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LaunchView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (window_ != nullptr) {
        return;
    }
    window_ = window();
    if (Desktop::isOnWayland()) {
        new FirstFrame(
            *window_, [this] { Q_EMIT waiting(fullScreenSize()); }, [this] { enterFullScreen(); });
        return;
    }
    // A frame in the initial size would be discarded and would delay the first visible one.
    window_->setUpdatesEnabled(false);
    // Queued, so that the window is shown before it changes its state.
    QMetaObject::invokeMethod(
        this,
        [this] {
            enterFullScreen();
            Q_EMIT waiting(fullScreenSize());
        },
        Qt::QueuedConnection);
}

QSize LaunchView::fullScreenSize() const {
    return window_->screen()->size();
}

void LaunchView::enterFullScreen() {
    assertMainThread();
    if (window_->isFullScreen() || window_->size() == fullScreenSize()) {
        window_->setUpdatesEnabled(true);
    } else {
        window_->setUpdatesEnabled(false);
        window_->installEventFilter(this);
        QTimer::singleShot(longestWait, this, &LaunchView::paintAfterTimeout);
    }
    if (!window_->isFullScreen()) {
        qCDebug(windowLog) << "requesting full screen";
        window_->setWindowState(window_->windowState() | Qt::WindowFullScreen);
    }
}

bool LaunchView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        paint();
    }
    return QWidget::eventFilter(watched, event);
}

void LaunchView::paint() {
    window_->removeEventFilter(this);
    window_->setUpdatesEnabled(true);
}

void LaunchView::paintAfterTimeout() {
    if (window_->updatesEnabled()) {
        return;
    }
    qCDebug(windowLog) << "no full-screen size after" << longestWait.count() << "ms";
    Q_EMIT sizeKept();
    paint();
    // The pending update was dropped while updates were disabled.
    window_->repaint();
}
