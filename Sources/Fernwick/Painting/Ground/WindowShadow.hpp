#pragma once

#include <QImage>
#include <QMargins>
#include <QRect>

class QPainter;

namespace Painting {

/// The soft shadow around a window with rounded corners, on a transparent ground. It is painted
/// once for a scale, around a window just large enough for its corners, and stretched along the
/// edges of larger ones.
class WindowShadow {
public:
    /// The room that it takes around the window, in points. Whole pixels at every quarter scale.
    static constexpr QMargins margins{36, 32, 36, 40};
    /// The radius of the window's corners, in points.
    static constexpr double cornerRadius = 12;

    WindowShadow() = default;
    /// `scale` is device pixels per point.
    explicit WindowShadow(double scale);

    [[nodiscard]] double scale() const { return scale_; }

    /// Paints the shadow of a window that covers `window`, all in device pixels. The pixels under
    /// the window get the shadow at its edges.
    void paint(QPainter& painter, const QRect& window) const;

private:
    double scale_ = 0;
    QMargins fixed_;  ///< the parts of `image_` that are not stretched
    QImage image_;
};

}  // namespace Painting
