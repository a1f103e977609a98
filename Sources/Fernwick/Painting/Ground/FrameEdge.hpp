#pragma once

#include <QImage>
#include <QPainter>
#include <vector>

#include "Painting/Ground/Backdrop.hpp"
#include "Painting/Ground/FrameShape.hpp"

/// What lies over the board's picture along its edge: the ground outside the rounded corners and
/// the frame's stroke. Laid over whatever the picture shows, it leaves the same pixels as a clip to
/// the rounded shape would, at the cost of a few thin strips.
class FrameEdge {
public:
    FrameEdge() = default;

    /// `place` is the part of the window's ground behind the board, in pixels, and `shape` the
    /// ground's frame counted from the corner of `place`.
    FrameEdge(const Backdrop& ground, const QRect& place, const FrameShape& shape);

    /// Lays what lies inside `area` over the picture that `painter` has painted, in its pixels.
    void paint(QPainter& painter, const QRect& area) const;

private:
    struct Strip {
        QPoint corner;
        QImage image;
    };

    std::vector<Strip> strips_;
};
