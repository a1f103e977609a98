#include "Fernwick/Painting/ReferencePainter.hpp"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>
#include <vector>

namespace {

using SnakeCore::Cell;
using SnakeCore::Direction;

const QColor mint = QColor::fromRgbF(0.65F, 0.94F, 0.64F);
const QColor soil = QColor::fromRgbF(0.055F, 0.095F, 0.076F);
const QColor fruitColour = QColor::fromRgbF(1.0F, 0.52F, 0.39F);
const QColor orange = QColor::fromRgbF(1.0F, 0.62F, 0.04F);
const QColor tailColour = QColor::fromRgbF(0.23F, 0.58F, 0.40F);

QColor withOpacity(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

QPointF centre(const Cell& position, double cell) {
    return {(static_cast<double>(position.x) + 0.5) * cell,
            (static_cast<double>(position.y) + 0.5) * cell};
}

QRectF disc(const QPointF& centre, double diameter) {
    return {centre.x() - diameter / 2, centre.y() - diameter / 2, diameter, diameter};
}

// One pass of a box blur over pixels that are `stride` apart.
void boxLine(quint32* line, qsizetype stride, int count, int radius, std::vector<quint32>& copy) {
    copy.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        copy[static_cast<std::size_t>(i)] = line[i * stride];
    }
    std::array<int, 4> sum{};
    const auto add = [&](int index, int sign) {
        if (index < 0 || index >= count) {
            return;
        }
        const quint32 pixel = copy[static_cast<std::size_t>(index)];
        for (std::size_t channel = 0; channel < 4; ++channel) {
            sum[channel] += sign * static_cast<int>((pixel >> (8 * channel)) & 0xFFU);
        }
    };
    for (int i = -radius; i < radius; ++i) {
        add(i, 1);
    }
    const int width = 2 * radius + 1;
    for (int i = 0; i < count; ++i) {
        add(i + radius, 1);
        quint32 pixel = 0;
        for (std::size_t channel = 0; channel < 4; ++channel) {
            pixel |= static_cast<quint32>((sum[channel] + width / 2) / width) << (8 * channel);
        }
        line[i * stride] = pixel;
        add(i - radius, -1);
    }
}

// Approximates a Gaussian with three box blurs in each direction.
void gaussianBlur(QImage& image, double sigma) {
    const int radius = static_cast<int>(std::lround((std::sqrt(4 * sigma * sigma + 1) - 1) / 2));
    std::vector<quint32> copy;
    auto* const pixels = reinterpret_cast<quint32*>(image.bits());
    const qsizetype stride = image.bytesPerLine() / 4;
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < image.height(); ++y) {
            boxLine(pixels + y * stride, 1, image.width(), radius, copy);
        }
        for (int x = 0; x < image.width(); ++x) {
            boxLine(pixels + x, stride, image.height(), radius, copy);
        }
    }
}

void paintShadow(QPainter& painter, const QImage& layer, const QColor& colour, double sigma) {
    QImage shadow = layer;
    QPainter tint(&shadow);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(QRectF(QPointF(), shadow.deviceIndependentSize()), colour);
    tint.end();
    gaussianBlur(shadow, sigma);
    painter.drawImage(QPointF(), shadow);
    painter.drawImage(QPointF(), layer);
}

void paintDots(QPainter& painter, const SnakeCore::Game& game, const Painting::PixelGrid& grid) {
    painter.setBrush(withOpacity(mint, 0.12));
    for (std::int64_t y = 0; y < game.height(); ++y) {
        for (std::int64_t x = 0; x < game.width(); ++x) {
            QPointF pixel = grid.origin + centre({x, y}, grid.cell);
            if (grid.scale < 2) {
                pixel = {std::floor(pixel.x()) + 0.5, std::floor(pixel.y()) + 0.5};
            }
            painter.drawEllipse(disc((pixel - grid.origin) / grid.scale, 1.6));
        }
    }
}

void paintFruit(QPainter& painter, const QPointF& position, double cell) {
    painter.setBrush(fruitColour);
    painter.drawEllipse(disc(position, 0.56 * cell));
}

void paintStem(QPainter& painter, const QPointF& position, double cell) {
    QPainterPath stem(position - QPointF(0, 0.3 * cell));
    stem.quadTo(position - QPointF(0, 0.55 * cell), position + QPointF(0.22, -0.48) * cell);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(mint, 2, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    painter.drawPath(stem);
    painter.setPen(Qt::NoPen);
}

void paintBody(QPainter& painter, const SnakeCore::Game& game, double cell) {
    const double width = 0.74 * cell;
    QLinearGradient gradient(centre(game.snake().back(), cell), centre(game.snake().front(), cell));
    gradient.setColorAt(0, tailColour);
    gradient.setColorAt(1, mint);
    QPainterPath band;
    band.setFillRule(Qt::WindingFill);
    for (std::size_t i = 0; i < game.snake().size(); ++i) {
        const QRectF here = disc(centre(game.snake()[i], cell), width);
        band.addEllipse(here);
        if (i > 0) {
            const Cell& after = game.snake()[i - 1];
            const bool level = after.y == game.snake()[i].y;
            const QRectF there = disc(centre(after, cell), width);
            const double inset = width / 2;
            band.addRect((here | there)
                             .adjusted(level ? inset : 0, level ? 0 : inset, level ? -inset : 0,
                                       level ? 0 : -inset));
        }
    }
    painter.fillPath(band, gradient);
}

void paintEyes(QPainter& painter, const SnakeCore::Game& game, double cell) {
    const Cell step = stepVector(game.direction());
    const QPointF ahead(static_cast<double>(step.x), static_cast<double>(step.y));
    const QPointF across(ahead.y(), ahead.x());
    const QPointF head = centre(game.snake().front(), cell);
    painter.setBrush(withOpacity(Qt::black, 0.75));
    for (const double side : {-0.16, 0.16}) {
        painter.drawEllipse(disc(head + (0.15 * ahead + side * across) * cell, 0.11 * cell));
    }
}

QPainter& setUp(QPainter& painter, const Painting::PixelGrid& grid) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(grid.origin / grid.scale);
    return painter;
}

// The picture on a transparent background.
QImage paintTransparent(const SnakeCore::Game& game, const Painting::PixelGrid& grid) {
    const double cell = grid.cell / grid.scale;
    const QPointF fruit = centre(game.food(), cell);
    QImage image(grid.size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(grid.scale);
    image.fill(Qt::transparent);
    QImage fruitLayer = image;
    QImage bodyLayer = image;
    {
        QPainter painter(&fruitLayer);
        paintFruit(setUp(painter, grid), fruit, cell);
    }
    {
        QPainter painter(&bodyLayer);
        paintBody(setUp(painter, grid), game, cell);
    }
    QPainter painter(&image);
    paintDots(setUp(painter, grid), game, grid);
    painter.resetTransform();
    paintShadow(painter, fruitLayer, withOpacity(orange, 0.55), 0.5 * grid.cell);
    paintStem(setUp(painter, grid), fruit, cell);
    painter.resetTransform();
    paintShadow(painter, bodyLayer, withOpacity(mint, 0.35), 0.45 * grid.cell);
    paintEyes(setUp(painter, grid), game, cell);
    return image;
}

QImage overSoil(const QImage& layer, double opacity) {
    QImage image(layer.size(), QImage::Format_RGB32);
    image.setDevicePixelRatio(layer.devicePixelRatio());
    image.fill(soil);
    QPainter painter(&image);
    painter.setOpacity(opacity);
    painter.drawImage(QPointF(), layer);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

}  // namespace

QImage ReferencePainter::paint(const SnakeCore::Game& game, const Painting::PixelGrid& grid) {
    return overSoil(paintTransparent(game, grid), 1);
}

QImage ReferencePainter::paintIdle(const SnakeCore::Game& game, const Painting::PixelGrid& grid) {
    QImage layer = paintTransparent(game, grid);
    gaussianBlur(layer, 5 * grid.scale);
    return overSoil(layer, 0.4);
}
