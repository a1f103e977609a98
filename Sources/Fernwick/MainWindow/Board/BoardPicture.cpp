#include "MainWindow/Board/BoardPicture.hpp"

#include <algorithm>

#include "Garden/Palette.hpp"
#include "MainWindow/Board/BandGradient.hpp"
#include "MainWindow/Board/Eyes.hpp"

/// The tiles to paint anew: `band` where only the colours of the band move on, `ground` where also
/// what lies below it is different.
struct BoardPicture::Changes {
    TileSet ground;
    TileSet band;
};

BoardPicture::BoardPicture(const PixelGrid& grid)
    : grid_(grid),
      ground_(grid.size, QImage::Format_RGB32),
      image_(grid.size, QImage::Format_RGB32),
      dots_(grid),
      glow_(grid),
      mask_(grid),
      links_(static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows)) {}

QRegion BoardPicture::show(const SnakeCore::Game& game) {
    const Changes changes = update(game);
    for (const QRect& cells : changes.ground.runs()) {
        paintGround(cells);
    }
    const auto bandBegins = [&](int column, int row) {
        return hasBand(column, row) != hasBand(column + 1, row);
    };
    for (const QRect& cells : changes.band.runs(bandBegins)) {
        paintBand(cells, game);
    }
    const SnakeCore::Cell head = game.snake().front();
    if (changes.band.contains(static_cast<int>(head.x), static_cast<int>(head.y))) {
        paintEyes(image_, grid_, game);
    }
    shown_ = game;
    QRegion region;
    for (const QRect& cells : changes.band.runs()) {
        region += grid_.tiles(cells);
    }
    return region;
}

BoardPicture::Changes BoardPicture::update(const SnakeCore::Game& game) {
    Changes changes{{grid_.columns, grid_.rows}, {grid_.columns, grid_.rows}};
    const auto around = [&](int column, int row, int reach) {
        changes.ground.addAround(column, row, reach);
        changes.band.addAround(column, row, reach);
    };
    if (!shown_) {
        changes.ground.addAll();
        changes.band.addAll();
    }
    if (!shown_ || shown_->food() != game.food()) {
        fruit_.emplace(grid_, game.food());
        for (const SnakeCore::Cell& place : {game.food(), shown_.value_or(game).food()}) {
            around(static_cast<int>(place.x), static_cast<int>(place.y), Fruit::reach);
        }
    }
    const std::vector<Links> links = snakeLinks(game);
    // The gradient runs from tail to head: when an end moves, the whole band changes its colours.
    const bool recolour = !shown_ || shown_->snake().front() != game.snake().front() ||
                          shown_->snake().back() != game.snake().back() ||
                          shown_->direction() != game.direction();
    for (int row = 0; row < grid_.rows; ++row) {
        for (int column = 0; column < grid_.columns; ++column) {
            const auto index = static_cast<std::size_t>(row * grid_.columns + column);
            if (links_[index] != links[index]) {
                glow_.change(column, row, links_[index], links[index]);
                mask_.setTile(column, row, links[index]);
                around(column, row, GlowField::reach);
            }
            if (recolour && links[index] != Link::none) {
                changes.band.add(column, row);
            }
        }
    }
    links_ = links;
    return changes;
}

void BoardPicture::paintGround(const QRect& cells) {
    const QRect area = grid_.tiles(cells);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* const row = reinterpret_cast<quint32*>(ground_.scanLine(y)) + area.left();
        std::fill_n(row, area.width(), Garden::soil.rgb());
    }
    dots_.paint(ground_, cells, area);
    fruit_->paint(ground_, area);
    glow_.paint(ground_, area);
}

void BoardPicture::paintBand(const QRect& cells, const SnakeCore::Game& game) {
    const QRect area = grid_.tiles(cells);
    const bool band = hasBand(cells.left(), cells.top());
    const BandGradient gradient(grid_.centre(game.snake().back()),
                                grid_.centre(game.snake().front()));
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* const row = reinterpret_cast<quint32*>(image_.scanLine(y)) + area.left();
        const auto* const ground =
            reinterpret_cast<const quint32*>(ground_.constScanLine(y)) + area.left();
        if (band) {
            gradient.paintRow(row, ground, mask_.row(y) + area.left(), area.width(), area.left(),
                              y);
        } else {
            std::copy_n(ground, area.width(), row);
        }
    }
}

bool BoardPicture::hasBand(int column, int row) const {
    return links_[static_cast<std::size_t>(row * grid_.columns + column)] != Link::none;
}
