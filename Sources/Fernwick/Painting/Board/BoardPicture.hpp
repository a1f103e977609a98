#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <array>
#include <optional>

#include "Painting/Board/BandGradient.hpp"
#include "Painting/Board/Dots.hpp"
#include "Painting/Board/GlowField.hpp"
#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Board/SnakeLinks.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "SnakeCore/Game.hpp"

namespace Painting {

/// The picture of a game at one size, on the board's plain fill. Its pixels are composed each time
/// they are painted, from layers that are updated where they change. Every pixel depends only on
/// the current game, neither on earlier games nor on the areas that are painted.
class BoardPicture {
public:
    explicit BoardPicture(const PixelGrid& grid);

    /// Shows `game`, which is as large as the grid. Returns the pixels that changed, possibly with
    /// some that did not.
    QRegion show(const SnakeCore::Game& game);

    /// Paints the pixels of `area` at the same coordinates of the painter. Call show() first.
    void paint(QPainter& painter, const QRect& area) const;
    /// The whole picture. Call show() first.
    [[nodiscard]] QImage image() const;

    [[nodiscard]] const PixelGrid& grid() const { return grid_; }

private:
    class Rows;

    [[nodiscard]] QRect bounds() const { return {QPoint(), grid_.size}; }
    void updateFruit(const SnakeCore::Cell& cell, QRegion& changed);
    void updateBand(const SnakeCore::Game& game, QRegion& changed);
    [[nodiscard]] QRegion bandRegion() const;

    PixelGrid grid_;
    Dots dots_;
    GlowField glow_;
    // The band's coverage of each pixel, from 0 to 255.
    Plane<std::uint8_t> mask_;
    Plane<Links> links_;
    std::array<CoverageLayer, 3> fruit_;
    std::optional<BandGradient> gradient_;
    std::array<CoverageLayer, 2> eyes_;
    std::optional<SnakeCore::Game> shown_;
};

}  // namespace Painting
