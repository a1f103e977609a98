#include "Painting/Ground/FrameShape.hpp"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Garden/Look/RoundedShape.hpp"

namespace {

// In points.
constexpr double cornerRadius = 22;
constexpr double strokeWidth = 1;
/// The length of a continuous corner along either edge, in radii.
constexpr double cornerReach = 1.6;

// The same for coordinates that differ by whole pixels, unlike std::round().
double roundedUp(double value) {
    return std::floor(value + 0.5);
}

// `frame` with each edge moved by at most half a pixel, so that the outer side of its stroke lies
// between two pixels. At scale 1 the stroke is then one sharp pixel wide on every side.
QRectF snapped(const QRectF& frame, double scale) {
    const double outside = strokeWidth / 2 * scale;
    return {QPointF(roundedUp(frame.left() - outside) + outside,
                    roundedUp(frame.top() - outside) + outside),
            QPointF(roundedUp(frame.right() + outside) - outside,
                    roundedUp(frame.bottom() + outside) - outside)};
}

template <typename Paint>
QImage coverageOf(const QRect& area, Paint paint) {
    QImage coverage(area.size(), QImage::Format_Alpha8);
    coverage.fill(0);
    QPainter painter(&coverage);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    paint(painter);
    return coverage;
}

}  // namespace

namespace Painting {

FrameShape::FrameShape(const QRectF& frame, double scale)
    : frame_(snapped(frame, scale)),
      scale_(scale),
      path_(Garden::continuousRoundedRect(frame_, cornerRadius * scale)) {}

std::vector<QRect> FrameShape::edges() const {
    const QRect all = bounds();
    const int corner = static_cast<int>(std::ceil(cornerReach * cornerRadius * scale_));
    const int thickness = static_cast<int>(std::ceil(strokeWidth * scale_)) + 2;
    const QSize size(std::min(corner, all.width() / 2), std::min(corner, all.height() / 2));
    // The three by three pieces begin at these columns and rows; the last number is the end.
    const int columns[] = {all.left(), all.left() + size.width(),
                           all.left() + all.width() - size.width(), all.left() + all.width()};
    const int rows[] = {all.top(), all.top() + size.height(),
                        all.top() + all.height() - size.height(), all.top() + all.height()};
    std::vector<QRect> pieces;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            QRect piece(QPoint(columns[column], rows[row]),
                        QPoint(columns[column + 1] - 1, rows[row + 1] - 1));
            if (row == 1 && column != 1) {
                piece.setWidth(std::min(piece.width(), thickness));
                piece.moveLeft(column == 0 ? all.left() : columns[3] - piece.width());
            } else if (column == 1 && row != 1) {
                piece.setHeight(std::min(piece.height(), thickness));
                piece.moveTop(row == 0 ? all.top() : rows[3] - piece.height());
            }
            if ((row != 1 || column != 1) && !piece.isEmpty()) {
                pieces.push_back(piece);
            }
        }
    }
    return pieces;
}

QRect FrameShape::bounds() const {
    const double outside = strokeWidth / 2 * scale_;
    return frame_.adjusted(-outside, -outside, outside, outside).toAlignedRect();
}

QImage FrameShape::fill(const QRect& area) const {
    return coverageOf(area, [&](QPainter& painter) { painter.fillPath(path_, Qt::black); });
}

QImage FrameShape::stroke(const QRect& area) const {
    return coverageOf(area, [&](QPainter& painter) {
        painter.setPen(QPen(Qt::black, strokeWidth * scale_));
        painter.drawPath(path_);
    });
}

}  // namespace Painting
