#include "Window/WindowChrome.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include "Window/WindowFrame.hpp"

namespace {

// In points: easy to hit, and still inside the window's empty margins.
constexpr int gripWidth = 6;

Qt::CursorShape cursorFor(Qt::Edges edges) {
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        return Qt::SizeBDiagCursor;
    }
    return (edges & (Qt::LeftEdge | Qt::RightEdge)) != 0 ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

}  // namespace

WindowChrome::WindowChrome(QWidget& window, const WindowFrame& frame, int bandHeight)
    : QObject(&window),
      window_(window),
      frame_(frame),
      handle_(window.windowHandle()),
      bandHeight_(bandHeight) {
    // The QWindow gets pointer events before any child widget.
    handle_->installEventFilter(this);
}

Qt::Edges WindowChrome::edgesAt(const QPoint& position) const {
    if (window_.isFullScreen() || window_.isMaximized()) {
        return {};
    }
    const QRect visible = frame_.visibleArea();
    Qt::Edges edges;
    if (frame_.inputArea().contains(position)) {
        edges.setFlag(Qt::LeftEdge, position.x() < visible.left() + gripWidth);
        edges.setFlag(Qt::RightEdge, position.x() > visible.right() - gripWidth);
        edges.setFlag(Qt::TopEdge, position.y() < visible.top() + gripWidth);
        edges.setFlag(Qt::BottomEdge, position.y() > visible.bottom() - gripWidth);
    }
    return edges;
}

bool WindowChrome::isBand(const QPoint& position) const {
    QRect band = frame_.visibleArea();
    band.setHeight(bandHeight_);
    if (window_.isFullScreen() || !band.contains(position)) {
        return false;
    }
    const QWidget* child = window_.childAt(position);
    const auto* bar = qobject_cast<const QMenuBar*>(child);
    return qobject_cast<const QAbstractButton*>(child) == nullptr &&
           (bar == nullptr || bar->actionAt(bar->mapFrom(&window_, position)) == nullptr);
}

void WindowChrome::showCursorFor(const QPoint& position) {
    const Qt::Edges edges = edgesAt(position);
    if (edges == hovered_) {
        return;
    }
    hovered_ = edges;
    if (edges == Qt::Edges()) {
        window_.unsetCursor();
    } else {
        window_.setCursor(cursorFor(edges));
    }
}

bool WindowChrome::press(const QMouseEvent& event) {
    const QPoint position = event.position().toPoint();
    const bool takesHold =
        event.button() == Qt::LeftButton && (edgesAt(position) != Qt::Edges() || isBand(position));
    held_ = takesHold ? std::optional(position) : std::nullopt;
    return takesHold;
}

// Starts only once the pointer has moved: after a plain click the window manager would never see
// the button's release and keep dragging.
bool WindowChrome::drag(const QMouseEvent& event) {
    const QPoint position = event.position().toPoint();
    if (!held_ || !event.buttons().testFlag(Qt::LeftButton) ||
        (position - *held_).manhattanLength() < QApplication::startDragDistance()) {
        return false;
    }
    const Qt::Edges edges = edgesAt(*held_);
    held_.reset();
    if (edges == Qt::Edges()) {
        return handle_->startSystemMove();
    }
    Q_EMIT resizeBegins();
    return handle_->startSystemResize(edges);
}

bool WindowChrome::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove:
            if (drag(static_cast<QMouseEvent&>(*event))) {
                return true;
            }
            showCursorFor(static_cast<QMouseEvent*>(event)->position().toPoint());
            break;
        case QEvent::MouseButtonPress:
            if (press(static_cast<QMouseEvent&>(*event))) {
                return true;
            }
            break;
        case QEvent::MouseButtonRelease:
            held_.reset();
            break;
        case QEvent::MouseButtonDblClick:
            if (isBand(static_cast<QMouseEvent*>(event)->position().toPoint())) {
                window_.setWindowState(window_.windowState() ^ Qt::WindowMaximized);
                return true;
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}
