#pragma once

#include <QImage>
#include <SnakeCore/Cell.hpp>

#include "MainWindow/Board/CoverageLayer.hpp"
#include "MainWindow/Board/PixelGrid.hpp"

/// The fruit with its glow and stem, at one place.
class Fruit {
public:
    Fruit(const PixelGrid& grid, const SnakeCore::Cell& place);

    /// How far the glow reaches over the cells around the fruit's.
    static constexpr int reach = 2;

    /// Paints what of it lies inside `area`.
    void paint(QImage& picture, const QRect& area) const;

private:
    CoverageLayer glow_;
    CoverageLayer ball_;
    CoverageLayer stem_;
};
