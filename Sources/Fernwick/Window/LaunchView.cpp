#include "Window/LaunchView.hpp"

#include <QCoreApplication>
#include <QPainter>
#include <QPointer>
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

/// Covers the window with the ground's colour and calls `shown` once the Wayland compositor has
/// presented that frame. mutter gives a window its place only then; one that enters full screen
/// earlier has no place to go back to.
class FirstFrame : public QWidget {
public:
    FirstFrame(QWidget& window, std::function<void()> shown)
        : QWidget(&window), shown_(std::move(shown)) {
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

    std::function<void()> shown_;
    bool painted_ = false;
};

void enterFullScreen(QWidget& window) {
    assertMainThread();
    if (!window.isFullScreen()) {
        qCDebug(windowLog) << "requesting full screen";
        if (window.size() != window.screen()->size()) {
            new PaintAfterResize(window);
        }
        window.setWindowState(window.windowState() | Qt::WindowFullScreen);
    }
}

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
    if (Desktop::isOnWayland()) {
        new FirstFrame(*window(), [this] { enterFullScreen(*window()); });
        return;
    }
    // Queued, so that the window is shown before it changes its state.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [window = QPointer<QWidget>(this->window())] {
            if (!window.isNull()) {
                enterFullScreen(*window);
            }
        },
        Qt::QueuedConnection);
}
