#include "MainWindow/Board/BoardPicture.hpp"

#include <algorithm>
#include <cmath>

#include "Garden/Palette.hpp"
#include "MainWindow/Board/BandGradient.hpp"
#include "MainWindow/Board/BandShape.hpp"
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
    const auto differ = [&](int column, int row) {
        return hasBand(column, row) != hasBand(column + 1, row) ||
               changes.ground.contains(column, row) != changes.ground.contains(column + 1, row);
    };
    QRegion region;
    for (const QRect& cells : changes.band.runs(differ)) {
        // Beside a band that only changes its colours nothing is new.
        const bool ground = changes.ground.contains(cells.left(), cells.top());
        const QRect area = ground ? grid_.tiles(cells) : bandArea(cells);
        paintBand(area, hasBand(cells.left(), cells.top()), game);
        region += area;
    }
    const SnakeCore::Cell head = game.snake().front();
    if (changes.band.contains(static_cast<int>(head.x), static_cast<int>(head.y))) {
        paintEyes(image_, grid_, game);
    }
    shown_ = game;
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

void BoardPicture::paintBand(const QRect& area, bool band, const SnakeCore::Game& game) {
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

QRect BoardPicture::bandArea(const QRect& cells) const {
    Links links = Link::none;
    for (int column = cells.left(); column <= cells.right(); ++column) {
        links = static_cast<Links>(links | linksOf(column, cells.top()));
    }
    QRect area = grid_.tiles(cells);
    const QPointF centre = grid_.centre({cells.left(), cells.top()});
    const double halfWidth = BandShape::halfWidth * grid_.cell + 0.5;
    if ((links & (Link::up | Link::down)) == Link::none) {
        area.setTop(std::max(area.top(), static_cast<int>(std::floor(centre.y() - halfWidth))));
        area.setBottom(
            std::min(area.bottom(), static_cast<int>(std::ceil(centre.y() + halfWidth))));
    } else if ((links & (Link::left | Link::right)) == Link::none && cells.width() == 1) {
        area.setLeft(std::max(area.left(), static_cast<int>(std::floor(centre.x() - halfWidth))));
        area.setRight(std::min(area.right(), static_cast<int>(std::ceil(centre.x() + halfWidth))));
    }
    return area;
}

Links BoardPicture::linksOf(int column, int row) const {
    return links_[static_cast<std::size_t>(row * grid_.columns + column)];
}

bool BoardPicture::hasBand(int column, int row) const {
    return linksOf(column, row) != Link::none;
}
