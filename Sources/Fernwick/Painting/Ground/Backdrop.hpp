#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QRegion>
#include <QSize>
#include <functional>
#include <optional>
#include <vector>

#include "Painting/Ground/FrameShadow.hpp"
#include "Painting/Ground/FrameShape.hpp"

namespace Painting {

/// The static background of the window: a dark fill with mint light from one top corner, the drop
/// shadow of the board's frame, and the frame's fill and stroke. Its pixels are composed each time
/// they are painted: a cached image of the window would be the largest allocation in the game.
class Backdrop {
public:
    /// Of the frame's stroke. Touching it ends the run, so high contrast makes it plain to see:
    /// more than 3 : 1 to the ground on either side.
    static constexpr double strokeOpacityByDefault = 0.16;
    static constexpr double strokeOpacityInHighContrast = 0.5;

    /// Sets the window's size and the board's frame in it, both in points, and the opacity of the
    /// frame's stroke. Cheap: everything that depends on them is computed at the next paint.
    void fit(const QSize& window, qreal devicePixelRatio, const QRectF& frame,
             double strokeOpacity = strokeOpacityByDefault);

    /// Changes whenever fit() changes the picture.
    [[nodiscard]] int revision() const { return revision_; }
    [[nodiscard]] double strokeOpacity() const { return strokeOpacity_; }
    /// The window in device pixels.
    [[nodiscard]] const QRect& bounds() const { return bounds_; }

    /// Paints the device pixels of `area`, inside `bounds()`, at the same coordinates of the
    /// painter.
    void paint(QPainter& painter, const QRect& area);
    /// The picture of `area`, inside `bounds()`.
    [[nodiscard]] QImage image(const QRect& area);

    /// A part of the frame's edge: the coverage of each pixel of `area` by the fill and by the
    /// stroke, from 0 to 255.
    struct Edge {
        QRect area;
        QImage fill;
        QImage stroke;
    };
    /// The frame's edge, in disjoint parts.
    [[nodiscard]] const std::vector<Edge>& edges();

    /// A function that composes the rows of `area`, from top to bottom.
    [[nodiscard]] std::function<void(const Scanline&)> rowsOf(const QRect& area);
    void prepare();
    void prepareFrame();

    int revision_ = 0;
    QSize window_;
    qreal scale_ = 0;
    QRectF frame_;
    double strokeOpacity_ = strokeOpacityByDefault;
    QRect bounds_;
    // Whether the members below are up to date with frame_ and scale_.
    bool prepared_ = true;
    std::optional<FrameShadow> shadow_;
    std::vector<Edge> edges_;
    // The pixels that the fill covers completely.
    QRegion inside_;
};

}  // namespace Painting
