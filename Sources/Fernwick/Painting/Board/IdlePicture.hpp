#pragma once

#include <QImage>

/// The board's picture as it rests while no run is moving: blurred with a Gaussian of `sigma`
/// pixels and dimmed to 0.4 over the board's plain fill, which also continues beyond its edges.
[[nodiscard]] QImage idlePicture(const QImage& picture, double sigma);
