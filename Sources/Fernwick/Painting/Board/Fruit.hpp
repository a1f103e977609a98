#pragma once

#include <QImage>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "SnakeCore/Cell.hpp"

/// The fruit with its glow and stem, at one place.
class Fruit {
public:
    Fruit(const PixelGrid& grid, const SnakeCore::Cell& place);

    /// The pixels that it and its glow touch; some may lie beyond the picture.
    [[nodiscard]] QRect bounds() const { return glow_.bounds() | stem_.bounds(); }

    /// Paints what of it lies inside `area`.
    void paint(QImage& picture, const QRect& area) const;

private:
    CoverageLayer glow_;
    CoverageLayer ball_;
    CoverageLayer stem_;
};
