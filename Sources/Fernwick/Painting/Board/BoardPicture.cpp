#include "Painting/Board/BoardPicture.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BandShape.hpp"
#include "Painting/Board/Eyes.hpp"
#include "Painting/Board/Fruit.hpp"
#include "Painting/Raster/ByteRuns.hpp"
#include "Painting/Raster/Composing.hpp"

namespace Painting {

/// Composes the rows of one rectangle, from top to bottom.
class BoardPicture::Rows {
public:
    Rows(const BoardPicture& picture, const QRect& area)
        : picture_(picture),
          glow_(picture.glow_, area),
          ground_(static_cast<std::size_t>(area.width())) {}

    void operator()(const Scanline& line) {
        constexpr std::uint8_t full = 255;
        const std::uint8_t* const mask = picture_.mask_.row(line.y) + line.x;
        if (endOfEqual(mask, full, 0, line.count) < line.count) {
            paintGround({ground_.data(), line.x, line.y, line.count});
        }
        picture_.gradient_->paint(line, ground_.data(), mask);
        for (const CoverageLayer& eye : picture_.eyes_) {
            eye.paint(line);
        }
    }

private:
    void paintGround(const Scanline& ground) {
        ground.fill(Garden::soil.rgb());
        picture_.dots_.paint(ground);
        for (const CoverageLayer& layer : picture_.fruit_) {
            layer.paint(ground);
        }
        glow_.paint(ground);
    }

    const BoardPicture& picture_;
    GlowField::Rows glow_;
    // What is below the band, in a buffer of one row, which stays in the CPU cache.
    std::vector<quint32> ground_;
};

BoardPicture::BoardPicture(const PixelGrid& grid)
    : grid_(grid),
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
        changed = bounds();
    }
    updateFruit(game.food(), changed);
    updateBand(game, changed);
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
    drawComposed(painter, area, Rows(*this, area));
}

QImage BoardPicture::image() const {
    return composedImage(bounds(), Rows(*this, bounds()));
}

void BoardPicture::updateFruit(const SnakeCore::Cell& cell, QRegion& changed) {
    if (shown_ && shown_->food() == cell) {
        return;
    }
    const auto addFruit = [&] {
        for (const CoverageLayer& layer : fruit_) {
            changed += layer.bounds() & bounds();
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
                changed += glow_.reach(column, row) & bounds();
            }
        }
    }
    links_ = std::move(links);
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
