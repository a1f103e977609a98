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
#include "Window/WindowFrame.hpp"

namespace {

// In points.
constexpr QSize defaultSize(940, 860);
constexpr QSize minimumSize(820, 760);
/// The smallest tile that a tiling compositor may choose.
constexpr QSize minimumTile(640, 360);
/// Room for panels on Wayland, where clients cannot know the work area.
constexpr int panelHeight = 64;

/// Two, because the compositor may be slow.
constexpr std::array settlingDelays{std::chrono::milliseconds(200),
                                    std::chrono::milliseconds(1000)};

/// Bounded by the available area of `screen`.
QSize defaultSizeOn(const QScreen& screen) {
    const QSize room = screen.availableSize();
    return defaultSize.boundedTo(Desktop::isOnWayland() ? room - QSize(0, panelHeight) : room);
}

bool coversScreen(const QWidget& window) {
    return window.isFullScreen() || window.isMaximized();
}

}  // namespace

WindowBounds::WindowBounds(QWidget& window, const WindowFrame& frame)
    : QObject(&window), window_(window), frame_(frame) {
    window.resize(defaultSizeOn(*window.screen()));
    normalSize_ = window.size();
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
    connect(&frame, &WindowFrame::marginsChanged, this, &WindowBounds::followMargins);
    followScreen();
}

void WindowBounds::followScreen() {
    const QScreen& screen = *window_.screen();
    connect(&screen, &QScreen::availableGeometryChanged, this, &WindowBounds::fitToChangedScreen,
            Qt::UniqueConnection);
    setMinimum();
    // Only the size: the player may be dragging the window from another screen.
    if (!coversScreen(window_)) {
        window_.resize(window_.size().boundedTo(screen.availableSize().grownBy(frame_.margins())));
    }
}

void WindowBounds::setMinimum() {
    // Qt 6.4's Wayland plugin never makes a window smaller than its minimum size. A tile of a
    // tiling compositor would be cut off, and a smaller output in full screen would be a protocol
    // error.
    const QSize minimum = Desktop::isOnWayland() ? minimumTile : minimumSize;
    // Never larger than the window is in full screen: Qt would resize it before it has left that.
    window_.setMinimumSize(
        minimum.grownBy(frame_.margins()).boundedTo(window_.screen()->availableSize()));
}

void WindowBounds::followMargins() {
    if (!frame_.fillsScreen() && isAsRemembered()) {
        window_.setGeometry(visiblePlace().marginsAdded(frame_.margins()));
    }
    setMinimum();
}

bool WindowBounds::isAsRemembered() const {
    return window_.size() == normalSize_.grownBy(normalMargins_);
}

// When the margins change or a window leaves full screen, mutter and KWin keep the size of its
// visible part. The other window managers keep its whole size, with the margins of before.
QRect WindowBounds::visiblePlace() const {
    return window_.geometry().marginsRemoved(isAsRemembered() ? normalMargins_ : frame_.margins());
}

void WindowBounds::rememberSize() {
    const QSize size = frame_.visibleArea().size();
    // The size may change before the state.
    const bool covers =
        frame_.fillsScreen() || size.expandedTo(window_.screen()->availableSize()) == size;
    if (!covers && !fitsAtNextResize_) {
        normalSize_ = size;
        normalMargins_ = frame_.margins();
    }
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
        for (const std::chrono::milliseconds delay : settlingDelays) {
            QTimer::singleShot(delay, &window_, [this] {
                // Updating the window alone would not paint the children that cover it.
                for (QWidget* widget : window_.findChildren<QWidget*>()) {
                    widget->update();
                }
            });
        }
    }
}

// If the compositor is late with a frame while the state changes, Qt's Wayland plugin regards the
// window as hidden and does not send its new size, and mutter keeps that of full screen. Only a
// change of the size makes Qt send it.
void WindowBounds::sendSizeLater() {
    if (Desktop::isOnWayland()) {
        for (const std::chrono::milliseconds delay : settlingDelays) {
            QTimer::singleShot(delay, &window_, [this] {
                QWindow& handle = *window_.windowHandle();
                const QSize size = handle.size();
                handle.resize(size - QSize(0, 1));
                handle.resize(size);
                window_.update();
            });
        }
    }
}

// Qt also reports a state that has not changed.
void WindowBounds::followState() {
    sendSizeLater();
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
    QRect place = visiblePlace();
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    window_.setGeometry(place.marginsAdded(frame_.margins()));
    rememberSize();
}

bool WindowBounds::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::WindowStateChange:
            followState();
            break;
        case QEvent::Resize:
            rememberSize();
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
