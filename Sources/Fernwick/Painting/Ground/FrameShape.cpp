#include "Painting/Ground/FrameShape.hpp"

#include <QPainter>
#include <cmath>

#include "Garden/Look/RoundedShape.hpp"

namespace {

// In points.
constexpr double cornerRadius = 22;
constexpr double strokeWidth = 1;
/// The length of a continuous corner along either edge, in radii.
constexpr double cornerReach = 1.6;

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
    : frame_(frame),
      scale_(scale),
      path_(Garden::continuousRoundedRect(frame, cornerRadius * scale)) {}

QRegion FrameShape::edges() const {
    const int corner = static_cast<int>(std::ceil(cornerReach * cornerRadius * scale_));
    const int edge = static_cast<int>(std::ceil(strokeWidth * scale_)) + 2;
    return QRegion(bounds()) - bounds().marginsRemoved({corner, edge, corner, edge}) -
           bounds().marginsRemoved({edge, corner, edge, corner});
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
