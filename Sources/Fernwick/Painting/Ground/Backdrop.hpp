#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <optional>
#include <vector>

#include "Painting/Ground/FrameShadow.hpp"
#include "Painting/Ground/FrameShape.hpp"

/// The still ground of the whole window: the night with the mint light of its corner, the shadow
/// that the board's frame throws and the frame's fill and stroke. It is composed only where and
/// when it is painted: kept as a picture it would be the largest thing in the game's memory.
class Backdrop {
public:
    /// Makes it the ground of a window of `size` points with the board's frame at `frame`, in
    /// points of the window. Does nothing when it is that already.
    void fit(const QSize& size, qreal devicePixelRatio, const QRectF& frame);

    /// Another one each time the ground changes.
    [[nodiscard]] int revision() const { return revision_; }
    /// The pixels of the window.
    [[nodiscard]] const QRect& bounds() const { return bounds_; }

    /// Paints the pixels of `area`, inside `bounds()`, at their place in the painter's coordinates.
    void paint(QPainter& painter, const QRect& area) const;
    /// The picture of `area`, inside `bounds()`.
    [[nodiscard]] QImage image(const QRect& area) const;

private:
    struct Edge {
        QRect area;
        QImage fill;
        QImage stroke;
    };

    class Rows;

    void placeFrame();

    int revision_ = 0;
    QSize size_;
    qreal scale_ = 0;
    QRectF frame_;
    QRect bounds_;
    std::optional<FrameShadow> shadow_;
    std::vector<Edge> edges_;
    // What the fill covers wholly, in rectangles without the edges.
    QRegion inside_;
};
