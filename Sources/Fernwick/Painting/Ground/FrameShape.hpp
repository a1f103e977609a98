#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <vector>

/// The rounded frame of the board on the pixels of a picture: which share of each pixel its fill
/// and its stroke cover.
class FrameShape {
public:
    /// Of the mint stroke.
    static constexpr double strokeOpacity = 0.16;

    /// The frame's exact place in pixels, and the pixels to a point.
    FrameShape(const QRectF& frame, double scale);

    /// Disjoint rectangles that hold every pixel which the fill covers in part or the stroke
    /// touches: the four corners and the four edges between them.
    [[nodiscard]] std::vector<QRect> edges() const;
    /// All pixels that the frame touches, stroke and all.
    [[nodiscard]] QRect bounds() const;

    /// The share of each pixel of `area`, from 0 to 255; 8 bits a pixel.
    [[nodiscard]] QImage fill(const QRect& area) const;
    /// The same for the stroke, which runs along the middle of the edge.
    [[nodiscard]] QImage stroke(const QRect& area) const;

    [[nodiscard]] const QPainterPath& path() const { return path_; }

private:
    QRectF frame_;
    double scale_;
    QPainterPath path_;
};
