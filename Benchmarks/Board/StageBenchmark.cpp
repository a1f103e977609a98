#include <benchmark/benchmark.h>

#include "Board/Screens.hpp"
#include "Fernwick/Painting/Games.hpp"
#include "Painting/Board/BandGradient.hpp"
#include "Painting/Board/BandMask.hpp"
#include "Painting/Board/Dots.hpp"
#include "Painting/Board/Eyes.hpp"
#include "Painting/Board/Fruit.hpp"
#include "Painting/Board/GlowField.hpp"
#include "Painting/Ground/Backdrop.hpp"
#include "Painting/Ground/FrameEdge.hpp"

namespace {

using SnakeCore::Game;

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
        benchmark::DoNotOptimize(snakeLinks(game));
    }
}

void maskOfOneTile(benchmark::State& state) {
    BandMask mask(gridOf(state));
    for (auto _ : state) {
        mask.setTile(9, 9, Link::left | Link::down);
    }
}

void glowOfOneCell(benchmark::State& state) {
    GlowField glow(gridOf(state));
    for (auto _ : state) {
        glow.change(9, 9, Link::left | Link::down, Link::left | Link::right);
    }
}

void glowOverTheBoard(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    GlowField glow(grid);
    glow.change(9, 9, Link::none, Link::left | Link::down);
    QImage picture = blank(grid);
    for (auto _ : state) {
        glow.paint(picture, picture.rect());
    }
}

void bandOverTheBoard(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    BandMask mask(grid);
    mask.setTile(9, 9, Link::left | Link::down);
    const BandGradient gradient({20, 20}, {700, 500});
    const QImage ground = blank(grid);
    QImage picture = blank(grid);
    for (auto _ : state) {
        for (int y = 0; y < grid.size.height(); ++y) {
            gradient.paintRow(reinterpret_cast<quint32*>(picture.scanLine(y)),
                              reinterpret_cast<const quint32*>(ground.constScanLine(y)),
                              mask.row(y), grid.size.width(), 0, y);
        }
    }
}

void makingTheDots(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Dots(grid));
    }
}

void dotsOverTheBoard(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    const Dots dots(grid);
    QImage picture = blank(grid);
    for (auto _ : state) {
        dots.paint(picture, picture.rect());
    }
}

void makingTheFruit(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Fruit(grid, {9, 9}));
    }
}

void fruitPainted(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    const Fruit fruit(grid, {9, 9});
    QImage picture = blank(grid);
    for (auto _ : state) {
        fruit.paint(picture, picture.rect());
    }
}

void makingTheEyes(benchmark::State& state) {
    const PixelGrid grid = gridOf(state);
    const Game game(28, 22);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Eyes(grid, game));
    }
}

// What a change of the window's size costs beside the picture.
void backdropAndEdge(benchmark::State& state) {
    const auto scale = static_cast<double>(state.range(0));
    const QRectF frame = fitBoard(Screens::space).frame.translated(38, 195);
    const QRect place = QRectF(frame.topLeft() * scale, frame.size() * scale).toAlignedRect();
    const QRectF here(frame.topLeft() * scale - place.topLeft(), frame.size() * scale);
    for (auto _ : state) {
        Backdrop backdrop;
        backdrop.fit({1920, 1080}, scale, frame);
        benchmark::DoNotOptimize(backdrop.image(backdrop.bounds()));
        benchmark::DoNotOptimize(FrameEdge(backdrop, place, FrameShape(here, scale)));
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
