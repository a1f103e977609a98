#pragma once

#include <span>

#include "Painting/Raster/Plane.hpp"

namespace Painting {

/// Blurs planes of the same size in place; `sigma` is in samples. Samples beyond the edges count as
/// zero.
void gaussianBlur(std::span<Plane<float>> planes, double sigma);

}  // namespace Painting
