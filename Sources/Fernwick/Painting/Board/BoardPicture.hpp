#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <optional>
#include <vector>

#include "Painting/Board/BandGradient.hpp"
#include "Painting/Board/BandMask.hpp"
#include "Painting/Board/Dots.hpp"
#include "Painting/Board/Eyes.hpp"
#include "Painting/Board/Fruit.hpp"
#include "Painting/Board/GlowField.hpp"
#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Board/SnakeLinks.hpp"
#include "SnakeCore/Game.hpp"

/// The picture of a game at one size, on the board's plain fill. Everything below the snake's band
/// is kept painted; band and eyes, which change their colours with nearly every step, are laid
/// over it only as they are put on the screen. A pixel depends on the game shown last alone, not
/// on those before it and not on the areas that it is painted by.
class BoardPicture {
public:
    explicit BoardPicture(const PixelGrid& grid);

    /// Shows `game`, whose board is the grid, and returns the pixels that changed; they may
    /// hold a few that did not.
    QRegion show(const SnakeCore::Game& game);

    /// Paints the pixels of `area`, at their place in the painter's coordinates. A game has been
    /// shown.
    void paint(QPainter& painter, const QRect& area);
    /// The whole picture.
    [[nodiscard]] QImage image() const;

    [[nodiscard]] const PixelGrid& grid() const { return grid_; }

private:
    void placeFruit(const SnakeCore::Cell& cell, QRegion& changed);
    void placeBand(const SnakeCore::Game& game, QRegion& changed);
    void paintGround(const QRect& area);
    void composeRow(quint32* row, int x, int count, int y) const;
    [[nodiscard]] QRegion bandRegion() const;
    [[nodiscard]] Links linksOf(int column, int row) const;

    PixelGrid grid_;
    // A few rows at a time, on their way to the screen.
    QImage composed_;
    // Everything below the band.
    QImage ground_;
    Dots dots_;
    GlowField glow_;
    BandMask mask_;
    std::vector<Links> links_;
    std::optional<Fruit> fruit_;
    std::optional<BandGradient> gradient_;
    std::optional<Eyes> eyes_;
    std::optional<SnakeCore::Game> shown_;
};
