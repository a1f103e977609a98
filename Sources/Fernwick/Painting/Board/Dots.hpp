#pragma once

#include <QImage>
#include <vector>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"

/// The faint dot in the middle of every cell: 1.6 points wide at any size of the board.
class Dots {
public:
    explicit Dots(const PixelGrid& grid);

    /// Paints the dots where they lie inside `area`.
    void paint(QImage& picture, const QRect& area) const;

private:
    PixelGrid grid_;
    // Every dot falls differently on the pixels.
    std::vector<CoverageLayer> dots_;
};
