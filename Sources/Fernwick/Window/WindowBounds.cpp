#include "Window/WindowBounds.hpp"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "Desktop/Environment.hpp"

namespace {

// In points.
constexpr QSize defaultSize(940, 860);
constexpr QSize minimumSize(820, 760);
/// The smallest tile that a tiling compositor may choose.
constexpr QSize minimumTile(640, 360);
/// Room for panels on Wayland, where clients cannot know the work area.
constexpr int panelHeight = 64;

/// Two, because the compositor may be slow.
constexpr std::array repaintDelays{std::chrono::milliseconds(200), std::chrono::milliseconds(1000)};

/// Bounded by the available area of `screen`.
QSize defaultSizeOn(const QScreen& screen) {
    const QSize room = screen.availableSize();
    return defaultSize.boundedTo(Desktop::isOnWayland() ? room - QSize(0, panelHeight) : room);
}

bool coversScreen(const QWidget& window) {
    return window.isFullScreen() || window.isMaximized();
}

}  // namespace

WindowBounds::WindowBounds(QWidget& window) : QObject(&window), window_(window) {
    window.resize(defaultSizeOn(*window.screen()));
    // Some X11 window managers would put it into the top left corner. On Wayland the compositor
    // alone decides.
    window.move(window.screen()->availableGeometry().center() - window.rect().center());
    window.installEventFilter(this);
    window.windowHandle()->installEventFilter(this);
    connect(window.windowHandle(), &QWindow::screenChanged, this, [this] {
        followScreen();
        repaintLater();
    });
    // Queued, so that Qt has already moved the window to a remaining screen.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &WindowBounds::fitToChangedScreen,
            Qt::QueuedConnection);
    followScreen();
}

void WindowBounds::followScreen() {
    const QScreen& screen = *window_.screen();
    connect(&screen, &QScreen::availableGeometryChanged, this, &WindowBounds::fitToChangedScreen,
            Qt::UniqueConnection);
    setMinimum();
    // Only the size: the player may be dragging the window from another screen.
    if (!coversScreen(window_)) {
        window_.resize(window_.size().boundedTo(screen.availableSize()));
    }
}

void WindowBounds::setMinimum() {
    // Qt's Wayland plugin never makes a window smaller than its minimum size. A tile of a tiling
    // compositor would be cut off, and a smaller output in full screen would be a protocol error.
    const QSize minimum = Desktop::isOnWayland() ? minimumTile : minimumSize;
    window_.setMinimumSize(minimum.boundedTo(window_.screen()->availableSize()));
}

void WindowBounds::beginResize() {
    if (Desktop::isOnWayland()) {
        window_.setMinimumSize(minimumSize.boundedTo(window_.size()));
    }
}

void WindowBounds::fitToChangedScreen() {
    setMinimum();
    fit();
    repaintLater();
}

// Qt's Wayland plugin replaces the window's buffer some time after the screen or its scale has
// changed, and Qt does not paint all of the new one: parts of the window stay black.
void WindowBounds::repaintLater() {
    if (Desktop::isOnWayland()) {
        for (const std::chrono::milliseconds delay : repaintDelays) {
            QTimer::singleShot(delay, &window_, [this] {
                // Updating the window alone would not paint the children that cover it.
                for (QWidget* widget : window_.findChildren<QWidget*>()) {
                    widget->update();
                }
            });
        }
    }
}

// Qt also reports a state that has not changed.
void WindowBounds::followState() {
    const bool covered = std::exchange(covers_, coversScreen(window_));
    if (covers_) {
        fitsAtNextResize_ = false;
    } else if (covered) {
        // The new geometry has not arrived yet.
        fitsAtNextResize_ = true;
    }
}

void WindowBounds::fit() {
    fitsAtNextResize_ = false;
    if (coversScreen(window_)) {
        return;
    }
    const QRect room = window_.screen()->availableGeometry();
    QRect place(window_.pos(), window_.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    window_.setGeometry(place);
}

bool WindowBounds::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::WindowStateChange:
            followState();
            break;
        case QEvent::Resize:
            if (fitsAtNextResize_) {
                QMetaObject::invokeMethod(this, &WindowBounds::fit, Qt::QueuedConnection);
            }
            break;
        case QEvent::Enter:
            // The compositor has had the pointer during the resize. The widget also gets enter
            // events when its children are moved.
            if (watched->isWindowType()) {
                setMinimum();
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}
