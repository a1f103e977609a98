#include <benchmark/benchmark.h>

#include "Board/Screens.hpp"
#include "Fernwick/Painting/Games.hpp"
#include "Painting/Board/BandGradient.hpp"
#include "Painting/Board/BandShape.hpp"
#include "Painting/Board/Dots.hpp"
#include "Painting/Board/Eyes.hpp"
#include "Painting/Board/Fruit.hpp"
#include "Painting/Board/GlowField.hpp"
#include "Painting/Ground/Backdrop.hpp"
#include "Painting/Ground/FrameEdge.hpp"

namespace {

using Painting::Link;
using Painting::PixelGrid;
using SnakeCore::Game;

using Mask = Painting::Plane<std::uint8_t>;

PixelGrid gridOf(const benchmark::State& state) {
    return Screens::grid(static_cast<double>(state.range(0)));
}

QImage blank(const PixelGrid& grid) {
    QImage picture(grid.size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    return picture;
}

void links(benchmark::State& state) {
    const Game game = Games::ofLength(400);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Painting::snakeLinks(game));
    }
}

void maskOfOneTile(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    Mask mask(grid.size.width(), grid.size.height());
    for (auto _ : state) {
        Painting::Band::drawTile(mask, grid, 9, 9, Link::left | Link::down);
    }
}

void glowOfOneCell(benchmark::State& state) {
    Painting::GlowField glow(gridOf(state));
    for (auto _ : state) {
        glow.change(9, 9, Link::left | Link::down, Link::left | Link::right);
    }
}

void glowOverTheBoard(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    Painting::GlowField glow(grid);
    glow.change(9, 9, {}, Link::left | Link::down);
    QImage picture = blank(grid);
    for (auto _ : state) {
        Painting::GlowField::Rows rows(glow, picture.rect());
        for (int y = 0; y < picture.height(); ++y) {
            rows.paint(Painting::scanline(picture, picture.rect(), y));
        }
    }
}

void bandOverTheBoard(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    Mask mask(grid.size.width(), grid.size.height());
    Painting::Band::drawTile(mask, grid, 9, 9, Link::left | Link::down);
    const Painting::BandGradient gradient({20, 20}, {700, 500});
    const QImage ground = blank(grid);
    QImage picture = blank(grid);
    for (auto _ : state) {
        for (int y = 0; y < grid.size.height(); ++y) {
            gradient.paint(Painting::scanline(picture, picture.rect(), y),
                           Painting::pixelsAt(ground, 0, y), mask.row(y));
        }
    }
}

void makingTheDots(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Painting::Dots(grid));
    }
}

void dotsOverTheBoard(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    const Painting::Dots dots(grid);
    QImage picture = blank(grid);
    for (auto _ : state) {
        for (int y = 0; y < picture.height(); ++y) {
            dots.paint(Painting::scanline(picture, picture.rect(), y));
        }
    }
}

void makingTheFruit(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Painting::makeFruit(grid, {9, 9}));
    }
}

void fruitPainted(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    const auto fruit = Painting::makeFruit(grid, {9, 9});
    QImage picture = blank(grid);
    for (auto _ : state) {
        for (const Painting::CoverageLayer& layer : fruit) {
            layer.paint(picture, picture.rect());
        }
    }
}

void makingTheEyes(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    const Game game(28, 22);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Painting::makeEyes(grid, game));
    }
}

// The work for a new window size besides the board's picture.
void backdropAndEdge(benchmark::State& state) {
    const auto scale = static_cast<double>(state.range(0));
    const QRectF frame =
        Painting::fitBoard(Screens::space, Screens::cells).frame.translated(38, 195);
    const QRect boardRect = QRectF(frame.topLeft() * scale, frame.size() * scale).toAlignedRect();
    for (auto _ : state) {
        Painting::Backdrop backdrop;
        backdrop.fit({1920, 1080}, scale, frame);
        benchmark::DoNotOptimize(backdrop.image(backdrop.bounds()));
        benchmark::DoNotOptimize(Painting::FrameEdge(backdrop, boardRect));
    }
}

void screens(benchmark::internal::Benchmark* one) {
    one->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(links)->Unit(benchmark::kMicrosecond);
BENCHMARK(maskOfOneTile)->Apply(screens);
BENCHMARK(glowOfOneCell)->Apply(screens);
BENCHMARK(glowOverTheBoard)->Apply(screens);
BENCHMARK(bandOverTheBoard)->Apply(screens);
BENCHMARK(makingTheDots)->Apply(screens);
BENCHMARK(dotsOverTheBoard)->Apply(screens);
BENCHMARK(makingTheFruit)->Apply(screens);
BENCHMARK(fruitPainted)->Apply(screens);
BENCHMARK(makingTheEyes)->Apply(screens);
BENCHMARK(backdropAndEdge)->Apply(screens);

}  // namespace
