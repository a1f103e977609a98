#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>

/// The still ground of the whole window: the night with the mint light of its corner, the shadow
/// that the board's frame throws and the frame's fill.
class Backdrop {
public:
    /// The ground for a window of `size` points with the board's frame at `frame`, in points of the
    /// window; as many pixels as the window has at `devicePixelRatio`. Painted when first asked
    /// for and kept until one of the three changes.
    [[nodiscard]] const QImage& image(const QSize& size, qreal devicePixelRatio,
                                      const QRectF& frame);

private:
    QImage image_;
    QSize size_;
    qreal devicePixelRatio_ = 0;
    QRectF frame_;
};
