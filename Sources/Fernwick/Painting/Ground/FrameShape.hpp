#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <vector>

namespace Painting {

/// Rasterizes the rounded frame around the board: the coverage of its fill and of its stroke.
class FrameShape {
public:
    /// `frame` is in device pixels; `scale` is device pixels per point. The shape's edges differ
    /// from the frame's by less than a pixel, so that the stroke is crisp.
    FrameShape(const QRectF& frame, double scale);

    /// Disjoint rectangles with every pixel that the fill covers partly or the stroke touches: the
    /// four corners and the four edges between them.
    [[nodiscard]] std::vector<QRect> edges() const;
    /// All pixels that the frame touches, including its stroke.
    [[nodiscard]] QRect bounds() const;

    /// The coverage of each pixel of `area` by the fill, from 0 to 255, in QImage::Format_Alpha8.
    [[nodiscard]] QImage fill(const QRect& area) const;
    /// The same for the stroke, which is centred on the frame's outline.
    [[nodiscard]] QImage stroke(const QRect& area) const;

    [[nodiscard]] const QPainterPath& path() const { return path_; }

private:
    QRectF frame_;
    double scale_;
    QPainterPath path_;
};

}  // namespace Painting
