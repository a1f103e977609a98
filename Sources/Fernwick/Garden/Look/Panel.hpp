#pragma once

#include <QRectF>

class QPainter;

namespace Garden {

/// Paints the background of a menu or tooltip in `rect`, aligned to device pixels: soil with a
/// hairline edge in mint and continuous corners of `radius` points. With high contrast the edge has
/// a contrast of at least 3 : 1.
void paintPanel(QPainter& painter, const QRectF& rect, double radius);

/// Width of a hairline in points: a whole number of device pixels, at most one point.
[[nodiscard]] double hairline(const QPainter& painter);

/// `rect` with each edge at the nearest edge of a device pixel inside it.
[[nodiscard]] QRectF alignedToPixels(const QPainter& painter, const QRectF& rect);

}  // namespace Garden
