#pragma once

#include "Painting/Raster/Plane.hpp"

namespace Painting {

/// Blurs `plane` in place; `sigma` is in samples. Samples beyond its edges count as zero.
void gaussianBlur(Plane<float>& plane, double sigma);

}  // namespace Painting
