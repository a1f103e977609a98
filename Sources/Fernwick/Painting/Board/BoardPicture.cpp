#include "Painting/Board/BoardPicture.hpp"

#include <algorithm>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BandShape.hpp"
#include "Painting/Raster/RowPainting.hpp"

BoardPicture::BoardPicture(const PixelGrid& grid)
    : grid_(grid),
      composed_(grid.size.width(), RowPainting::rowsAtOnce, QImage::Format_RGB32),
      ground_(grid.size, QImage::Format_RGB32),
      dots_(grid),
      glow_(grid),
      mask_(grid),
      links_(static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows)) {}

QRegion BoardPicture::show(const SnakeCore::Game& game) {
    QRegion changed;
    if (!shown_) {
        changed = ground_.rect();
    }
    placeFruit(game.food(), changed);
    placeBand(game, changed);
    for (const QRect& area : changed) {
        paintGround(area);
    }
    // The gradient runs from tail to head: when an end moves, the whole band changes its colours.
    const auto& snake = game.snake();
    if (!shown_ || shown_->snake().front() != snake.front() ||
        shown_->snake().back() != snake.back() || shown_->direction() != game.direction()) {
        gradient_.emplace(grid_.centre(snake.back()), grid_.centre(snake.front()));
        eyes_.emplace(grid_, game);
        changed += bandRegion();
    }
    shown_ = game;
    return changed;
}

void BoardPicture::paint(QPainter& painter, const QRect& area) {
    RowPainting::paint(painter, area, composed_, [this](quint32* row, int x, int count, int y) {
        composeRow(row, x, count, y);
    });
}

QImage BoardPicture::image() const {
    return RowPainting::image(ground_.rect(), [this](quint32* row, int x, int count, int y) {
        composeRow(row, x, count, y);
    });
}

void BoardPicture::placeFruit(const SnakeCore::Cell& cell, QRegion& changed) {
    if (shown_ && shown_->food() == cell) {
        return;
    }
    if (fruit_) {
        changed += fruit_->bounds() & ground_.rect();
    }
    fruit_.emplace(grid_, cell);
    changed += fruit_->bounds() & ground_.rect();
}

void BoardPicture::placeBand(const SnakeCore::Game& game, QRegion& changed) {
    std::vector<Links> links = snakeLinks(game);
    for (int row = 0; row < grid_.rows; ++row) {
        for (int column = 0; column < grid_.columns; ++column) {
            const auto index = static_cast<std::size_t>(row * grid_.columns + column);
            if (links_[index] != links[index]) {
                glow_.change(column, row, links_[index], links[index]);
                mask_.setTile(column, row, links[index]);
                changed += glow_.reach(column, row) & ground_.rect();
            }
        }
    }
    links_ = std::move(links);
}

void BoardPicture::paintGround(const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        std::fill_n(RowPainting::pixelsOf(ground_, area.left(), y), area.width(),
                    Garden::soil.rgb());
    }
    dots_.paint(ground_, area);
    fruit_->paint(ground_, area);
    glow_.paint(ground_, area);
}

void BoardPicture::composeRow(quint32* row, int x, int count, int y) const {
    const auto* const ground = reinterpret_cast<const quint32*>(ground_.constScanLine(y)) + x;
    gradient_->paintRow(row, ground, mask_.row(y) + x, count, x, y);
    eyes_->paintRow(row, x, count, y);
}

QRegion BoardPicture::bandRegion() const {
    const double halfWidth = BandShape::halfWidth * grid_.cell + 0.5;
    // Row by row and from left to right, as a region takes them without sorting.
    std::vector<QRect> spans;
    const auto addSpans = [&](int row, int top, int bottom, Links ways) {
        for (int column = 0; column < grid_.columns && top <= bottom; ++column) {
            const int first = column;
            while (column < grid_.columns && (linksOf(column, row) & ways) != Link::none) {
                ++column;
            }
            if (column > first) {
                const QRect cells = grid_.tiles({first, row, column - first, 1});
                spans.emplace_back(QPoint(cells.left(), top), QPoint(cells.right(), bottom));
            }
        }
    };
    for (int row = 0; row < grid_.rows; ++row) {
        // Beside the band nothing is new: only arms upward or downward reach past its width.
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

Links BoardPicture::linksOf(int column, int row) const {
    return links_[static_cast<std::size_t>(row * grid_.columns + column)];
}
