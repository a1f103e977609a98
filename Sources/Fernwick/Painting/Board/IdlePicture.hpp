#pragma once

#include <QImage>

namespace Painting {

/// The board's picture while no run is moving: a Gaussian blur of `sigma` pixels, at opacity 0.4
/// over the board's plain fill. Beyond its edges the picture counts as plain fill.
[[nodiscard]] QImage idlePicture(const QImage& picture, double sigma);

}  // namespace Painting
