#pragma once

#include <QImage>
#include <QRegion>
#include <SnakeCore/Game.hpp>
#include <optional>
#include <vector>

#include "MainWindow/Board/BandMask.hpp"
#include "MainWindow/Board/Dots.hpp"
#include "MainWindow/Board/Fruit.hpp"
#include "MainWindow/Board/GlowField.hpp"
#include "MainWindow/Board/PixelGrid.hpp"
#include "MainWindow/Board/SnakeLinks.hpp"
#include "MainWindow/Board/TileSet.hpp"

/// The picture of a game at one size, on the board's plain fill, kept up to date tile by tile. The
/// bytes of the picture depend on the game shown last alone, not on those before it.
class BoardPicture {
public:
    explicit BoardPicture(const PixelGrid& grid);

    /// Shows `game`, whose board is the grid, and returns the pixels that changed; they may
    /// hold a few that did not.
    QRegion show(const SnakeCore::Game& game);

    [[nodiscard]] const QImage& image() const { return image_; }
    [[nodiscard]] const PixelGrid& grid() const { return grid_; }

private:
    struct Changes;

    [[nodiscard]] Changes update(const SnakeCore::Game& game);
    void paintGround(const QRect& cells);
    void paintBand(const QRect& area, bool band, const SnakeCore::Game& game);
    [[nodiscard]] QRect bandArea(const QRect& cells) const;
    [[nodiscard]] Links linksOf(int column, int row) const;
    [[nodiscard]] bool hasBand(int column, int row) const;

    PixelGrid grid_;
    // Everything below the band, and the same with band and eyes.
    QImage ground_;
    QImage image_;
    Dots dots_;
    GlowField glow_;
    BandMask mask_;
    std::vector<Links> links_;
    std::optional<Fruit> fruit_;
    std::optional<SnakeCore::Game> shown_;
};
