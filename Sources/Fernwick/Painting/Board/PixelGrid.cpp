#include "Painting/Board/PixelGrid.hpp"

#include <algorithm>
#include <cmath>

namespace {

// The first pixel of tile `index` along one axis.
int tileEdge(int index, int count, double origin, double cell, int length) {
    if (index <= 0) {
        return 0;
    }
    if (index >= count) {
        return length;
    }
    return std::min(static_cast<int>(std::lround(origin + index * cell)), length);
}

}  // namespace

namespace Painting {

QPointF PixelGrid::centre(const SnakeCore::Cell& position) const {
    return origin +
           QPointF(static_cast<double>(position.x) + 0.5, static_cast<double>(position.y) + 0.5) *
               cell;
}

QRect PixelGrid::tiles(const QRect& cells) const {
    const auto column = [&](int x) { return tileEdge(x, columns, origin.x(), cell, size.width()); };
    const auto row = [&](int y) { return tileEdge(y, rows, origin.y(), cell, size.height()); };
    const QPoint topLeft(column(cells.left()), row(cells.top()));
    const QPoint end(column(cells.left() + cells.width()), row(cells.top() + cells.height()));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

QRect PixelGrid::cellsAt(const QRect& pixels) const {
    const QRectF covered((QPointF(pixels.topLeft()) - origin) / cell, QSizeF(pixels.size()) / cell);
    return covered.toAlignedRect() & QRect(0, 0, columns, rows);
}

}  // namespace Painting
