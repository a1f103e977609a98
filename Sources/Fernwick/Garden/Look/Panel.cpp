#include "Garden/Look/Panel.hpp"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

constexpr double edgeOpacity = 0.16;
constexpr double highContrastEdgeOpacity = 0.45;

}  // namespace

double hairline(const QPainter& painter) {
    const double scale = painter.deviceTransform().m11();
    return std::max(1.0, std::floor(scale)) / scale;
}

QRectF alignedToPixels(const QPainter& painter, const QRectF& rect) {
    // A multiple of 2/3 or 1/1.25 of a point is not exact.
    constexpr double rounding = 1e-6;
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(rect);
    const QPointF topLeft(std::ceil(device.left() - rounding), std::ceil(device.top() - rounding));
    const QPointF bottomRight(std::floor(device.right() + rounding),
                              std::floor(device.bottom() + rounding));
    return toDevice.inverted().mapRect(QRectF(topLeft, bottomRight));
}

void paintPanel(QPainter& painter, const QRectF& rect, double radius) {
    const QRectF whole = alignedToPixels(painter, rect);
    const double line = hairline(painter);
    const double opacity = Contrast::shared().isHigh() ? highContrastEdgeOpacity : edgeOpacity;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRoundedRect(whole, radius), soil);
    painter.strokePath(
        continuousRoundedRect(inset(whole, line / 2), radius - line / 2),
        QPen(withOpacity(mint, opacity), line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.restore();
}

}  // namespace Garden
