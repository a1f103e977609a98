#include "Painting/Board/BoardPicture.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BandShape.hpp"
#include "Painting/Board/Eyes.hpp"
#include "Painting/Board/Fruit.hpp"
#include "Painting/Raster/Composing.hpp"

namespace Painting {

BoardPicture::BoardPicture(const PixelGrid& grid)
    : grid_(grid),
      ground_(grid.size, QImage::Format_RGB32),
      dots_(grid),
      glow_(grid),
      mask_(grid.size.width(), grid.size.height()),
      links_(grid.columns, grid.rows) {}

QRegion BoardPicture::show(const SnakeCore::Game& game) {
    if (shown_ == game) {
        return {};
    }
    QRegion changed;
    if (!shown_) {
        changed = ground_.rect();
    }
    updateFruit(game.food(), changed);
    updateBand(game, changed);
    for (const QRect& area : changed) {
        paintGround(area);
    }
    // The gradient runs from tail to head: when either moves, the whole band changes its colours.
    const auto& snake = game.snake();
    if (!shown_ || shown_->snake().front() != snake.front() ||
        shown_->snake().back() != snake.back() || shown_->direction() != game.direction()) {
        gradient_.emplace(grid_.centre(snake.back()), grid_.centre(snake.front()));
        eyes_ = makeEyes(grid_, game);
        changed += bandRegion();
    }
    shown_ = game;
    return changed;
}

void BoardPicture::paint(QPainter& painter, const QRect& area) const {
    drawComposed(painter, area, [this](const Scanline& line) { compose(line); });
}

QImage BoardPicture::image() const {
    return composedImage(ground_.rect(), [this](const Scanline& line) { compose(line); });
}

void BoardPicture::updateFruit(const SnakeCore::Cell& cell, QRegion& changed) {
    if (shown_ && shown_->food() == cell) {
        return;
    }
    const auto addFruit = [&] {
        for (const CoverageLayer& layer : fruit_) {
            changed += layer.bounds() & ground_.rect();
        }
    };
    addFruit();
    fruit_ = makeFruit(grid_, cell);
    addFruit();
}

void BoardPicture::updateBand(const SnakeCore::Game& game, QRegion& changed) {
    Plane<Links> links = snakeLinks(game);
    for (int row = 0; row < grid_.rows; ++row) {
        for (int column = 0; column < grid_.columns; ++column) {
            const Links before = links_.at(column, row);
            const Links after = links.at(column, row);
            if (before != after) {
                glow_.change(column, row, before, after);
                Band::drawTile(mask_, grid_, column, row, after);
                changed += glow_.reach(column, row) & ground_.rect();
            }
        }
    }
    links_ = std::move(links);
}

void BoardPicture::paintGround(const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        scanline(ground_, area, y).fill(Garden::soil.rgb());
    }
    dots_.paint(ground_, area);
    for (const CoverageLayer& layer : fruit_) {
        layer.paint(ground_, area);
    }
    glow_.paint(ground_, area);
}

void BoardPicture::compose(const Scanline& line) const {
    gradient_->paint(line, pixelsAt(ground_, line.x, line.y), mask_.row(line.y) + line.x);
    for (const CoverageLayer& eye : eyes_) {
        eye.paint(line);
    }
}

QRegion BoardPicture::bandRegion() const {
    const double halfWidth = Band::halfWidth * grid_.cell + 0.5;
    // Top to bottom and left to right, the order in which QRegion::setRects() takes them.
    std::vector<QRect> spans;
    const auto addSpans = [&](int row, int top, int bottom, Links links) {
        for (int column = 0; column < grid_.columns && top <= bottom; ++column) {
            const int first = column;
            while (column < grid_.columns && (links_.at(column, row) & links)) {
                ++column;
            }
            if (column > first) {
                const QRect cells = grid_.tiles({first, row, column - first, 1});
                spans.emplace_back(QPoint(cells.left(), top), QPoint(cells.right(), bottom));
            }
        }
    };
    for (int row = 0; row < grid_.rows; ++row) {
        // Above and below the band's width a cell holds only the arms that go up and down.
        const QRect cells = grid_.tiles({0, row, grid_.columns, 1});
        const double middle = grid_.centre({0, row}).y();
        const int top = std::max(static_cast<int>(std::floor(middle - halfWidth)), cells.top());
        const int bottom =
            std::min(static_cast<int>(std::ceil(middle + halfWidth)), cells.bottom());
        addSpans(row, cells.top(), top - 1, Link::up);
        addSpans(row, top, bottom, Link::up | Link::down | Link::left | Link::right);
        addSpans(row, bottom + 1, cells.bottom(), Link::down);
    }
    QRegion region;
    region.setRects(spans.data(), static_cast<int>(spans.size()));
    return region;
}

}  // namespace Painting
