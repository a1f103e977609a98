#pragma once

#include <QImage>
#include <QPainter>
#include <vector>

#include "Painting/Ground/Backdrop.hpp"

namespace Painting {

/// Rounds the corners of the board's picture: thin strips along its edge with the backdrop outside
/// of the frame and the frame's stroke. Drawn over the picture, they give the same pixels as an
/// antialiased clip to the rounded frame, which QPainter would apply to every pixel of the board.
class FrameEdge {
public:
    FrameEdge() = default;

    /// `boardRect` is the board among the backdrop's device pixels.
    FrameEdge(Backdrop& ground, const QRect& boardRect);

    /// Draws what lies inside `area`, in pixels of the board's picture.
    void paint(QPainter& painter, const QRect& area) const;

private:
    struct Strip {
        QPoint corner;
        QImage image;
    };

    std::vector<Strip> strips_;
};

}  // namespace Painting
