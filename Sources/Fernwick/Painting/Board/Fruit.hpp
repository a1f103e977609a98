#pragma once

#include <QImage>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "SnakeCore/Cell.hpp"

namespace Painting {

/// The fruit with its glow and stem, in one cell.
class Fruit {
public:
    Fruit(const PixelGrid& grid, const SnakeCore::Cell& place);

    /// The pixels that fruit, glow and stem touch; some may lie outside of the picture.
    [[nodiscard]] QRect bounds() const { return glow_.bounds() | stem_.bounds(); }

    /// Paints the part that lies inside `area`.
    void paint(QImage& picture, const QRect& area) const;

private:
    CoverageLayer glow_;
    CoverageLayer ball_;
    CoverageLayer stem_;
};

}  // namespace Painting
