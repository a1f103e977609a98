#pragma once

#include <QImage>

namespace Painting {

/// The board's picture while the snake does not move: a Gaussian blur of `sigma` pixels, at opacity
/// 0.4 over the board's plain fill. Outside its edges the picture is treated as plain fill.
[[nodiscard]] QImage idlePicture(const QImage& picture, double sigma);

}  // namespace Painting
