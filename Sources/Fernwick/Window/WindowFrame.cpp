#include "Window/WindowFrame.hpp"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QWindow>
#include <utility>

#include "Desktop/X11Compositor.hpp"
#include "Desktop/X11Frame.hpp"
#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Screens/Main/WidgetPixels.hpp"

namespace {

using Painting::WindowShadow;

// In points.
constexpr int edgeWidth = 1;
/// The square that a continuous corner of the radius lies in.
constexpr int cornerSize = 19;
static_assert(cornerSize >= 1.53 * WindowShadow::cornerRadius);
/// How far outside of the visible edge it can be dragged.
constexpr int outerGrip = 8;

constexpr QColor edgeColour = Garden::srgb(0.65, 0.94, 0.64, 0.16);
constexpr QColor edgeColourInHighContrast = Garden::srgb(1, 1, 1, 0.7);

}  // namespace

bool WindowFrame::isSupported() {
    return Desktop::isComposited() && Desktop::supportsFrameMargins();
}

WindowFrame::WindowFrame(QWidget& window) : QWidget(&window), window_(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    window.installEventFilter(this);
}

void WindowFrame::begin() {
    connect(new Desktop::FrameWatch(*window_.windowHandle(), this), &Desktop::FrameWatch::changed,
            this, &WindowFrame::followDesktop);
    followDesktop();
}

void WindowFrame::followDesktop() {
    // The window keeps the pixel format that it was created with.
    setSupported(window_.testAttribute(Qt::WA_TranslucentBackground) && isSupported());
}

void WindowFrame::setSupported(bool supported) {
    supported_ = supported;
    refresh();
}

QRect WindowFrame::visibleArea() const {
    return window_.rect().marginsRemoved(margins_);
}

QRect WindowFrame::inputArea() const {
    return window_.rect() & visibleArea().marginsAdded(QMargins() + outerGrip);
}

void WindowFrame::refresh() {
    fillsScreen_ = window_.isFullScreen() || window_.isMaximized() ||
                   (supported_ && Desktop::isHalfMaximized(*window_.windowHandle()));
    const QMargins before =
        std::exchange(margins_, supported_ && !fillsScreen_ ? WindowShadow::margins : QMargins());
    setVisible(!margins_.isNull());
    if (margins_ != before) {
        const QMarginsF inPixels = QMarginsF(margins_) * window_.devicePixelRatioF();
        Desktop::setFrameMargins(*window_.windowHandle(), inPixels.toMargins());
        Q_EMIT marginsChanged();
        window_.update();
    }
    fit();
}

void WindowFrame::fit() {
    const QRect visible = visibleArea();
    const QRegion edge = QRegion(visible) - visible.marginsRemoved(QMargins() + edgeWidth);
    setGeometry(visible);
    setMask((edge + corners()).translated(-visible.topLeft()));
    if (window_.testAttribute(Qt::WA_TranslucentBackground)) {
        tellDesktop();
    }
}

void WindowFrame::tellDesktop() {
    const auto inPixels = [scale = window_.devicePixelRatioF()](const QRect& points) {
        return WidgetPixels::inWindow(points, scale);
    };
    const QRect visible = visibleArea();
    // At odd scales, pixels at the edge are partly shadow.
    QRegion opaque(
        inPixels(margins_.isNull() ? visible : visible.marginsRemoved(QMargins() + edgeWidth)));
    for (const QRect& part : corners()) {
        opaque -= inPixels(part);
    }
    Desktop::setOpaqueRegion(*window_.windowHandle(), opaque);
    Desktop::setInputArea(*window_.windowHandle(),
                          margins_.isNull() ? QRect() : inPixels(inputArea()));
}

QRegion WindowFrame::corners() const {
    if (margins_.isNull()) {
        return {};
    }
    const QRect visible = visibleArea();
    const QSize size(cornerSize, cornerSize);
    QRegion corners;
    for (const int x : {visible.left(), visible.right() + 1 - cornerSize}) {
        for (const int y : {visible.top(), visible.bottom() + 1 - cornerSize}) {
            corners += QRect(QPoint(x, y), size);
        }
    }
    return corners;
}

void WindowFrame::paintShadow(QPainter& painter, const QRect& widget) {
    if (margins_.isNull()) {
        return;
    }
    const qreal scale = window_.devicePixelRatioF();
    if (shadow_.scale() != scale) {
        shadow_ = WindowShadow(scale);
    }
    const WidgetPixels pixels(painter, widget, scale);
    shadow_.paint(painter, pixels.of(visibleArea().translated(-widget.topLeft())));
}

void WindowFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF visible = rect();
    const double radius = WindowShadow::cornerRadius;
    const double half = edgeWidth / 2.0;
    painter.setPen(QPen(Garden::Contrast::shared().isHigh() ? edgeColourInHighContrast : edgeColour,
                        edgeWidth));
    painter.drawPath(Garden::continuousRoundedRect(Garden::inset(visible, half), radius - half));
    painter.setPen(Qt::NoPen);
    QPainterPath outside;
    outside.addRect(visible);
    outside -= Garden::continuousRoundedRect(visible, radius);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outside, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    painter.setClipRegion(corners().translated(-pos()));
    paintShadow(painter, geometry());
}

bool WindowFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange || event->type() == QEvent::Resize) {
        refresh();
    }
    return QWidget::eventFilter(watched, event);
}
