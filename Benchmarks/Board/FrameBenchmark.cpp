#include <benchmark/benchmark.h>

#include <QPainter>
#include <algorithm>

#include "Board/Screens.hpp"
#include "Fernwick/Painting/Games.hpp"
#include "Fernwick/Painting/ReferencePainter.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Board/IdlePicture.hpp"

namespace {

using SnakeCore::Game;

constexpr std::size_t wholeBoard = 616;

double scaleOf(const benchmark::State& state) {
    return static_cast<double>(state.range(0));
}

// A run and the same run one step later. The step eats no fruit, unless it fills the board.
std::pair<Game, Game> consecutiveGames(std::size_t length) {
    const std::size_t before = std::min(length, wholeBoard - 1);
    Game game = before > 4 ? Games::ofLength(before) : Game(28, 22);
    Game next = game;
    do {
        game = next;
        next.turn(alongCycle(next));
        next.step();
    } while (length < wholeBoard && next.score() != game.score());
    return {game, next};
}

void present(QImage& screen, Painting::BoardPicture& picture, const QRegion& region) {
    QPainter painter(&screen);
    for (const QRect& part : region) {
        picture.paint(painter, part);
    }
}

// One tick: updates the picture and draws what changed.
void frame(benchmark::State& state) {
    const auto [before, after] = consecutiveGames(static_cast<std::size_t>(state.range(1)));
    Painting::BoardPicture picture(Screens::grid(scaleOf(state)));
    picture.show(before);
    QImage screen = picture.image();
    bool forward = false;
    for (auto _ : state) {
        forward = !forward;
        present(screen, picture, picture.show(forward ? after : before));
    }
}

void copyingTheFrame(benchmark::State& state) {
    Painting::BoardPicture picture(Screens::grid(scaleOf(state)));
    picture.show(Game(28, 22));
    const QImage whole = picture.image();
    QImage screen = whole.copy();
    for (auto _ : state) {
        QPainter painter(&screen);
        painter.drawImage(0, 0, whole);
    }
}

void straightforwardFrame(benchmark::State& state) {
    const auto [before, after] = consecutiveGames(static_cast<std::size_t>(state.range(1)));
    const Painting::PixelGrid grid = Screens::grid(scaleOf(state));
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReferencePainter::paint(after, grid));
    }
}

void pauseBlur(benchmark::State& state) {
    const Painting::PixelGrid grid = Screens::grid(scaleOf(state));
    const Game game = Games::ofLength(60);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Painting::IdlePicture(game, grid).image());
    }
}

// Making the picture at a new window size, and composing all of it.
void firstFrame(benchmark::State& state) {
    const Game game = Games::ofLength(static_cast<std::size_t>(state.range(1)));
    for (auto _ : state) {
        Painting::BoardPicture picture(Screens::grid(scaleOf(state)));
        picture.show(game);
        benchmark::DoNotOptimize(picture.image());
    }
}

void screensAndLengths(benchmark::internal::Benchmark* one) {
    one->MeasureProcessCPUTime()
        ->ArgNames({"scale", "cells"})
        ->ArgsProduct({{1, 2}, {4, 60, 400, 616}});
}

void screens(benchmark::internal::Benchmark* one) {
    // Large areas are composed in two threads.
    one->MeasureProcessCPUTime()->ArgName("scale")->Arg(1)->Arg(2);
}

BENCHMARK(copyingTheFrame)->Apply(screens)->Unit(benchmark::kMicrosecond);
BENCHMARK(frame)->Apply(screensAndLengths)->Unit(benchmark::kMicrosecond);
BENCHMARK(straightforwardFrame)->Apply(screensAndLengths)->Unit(benchmark::kMicrosecond);
BENCHMARK(pauseBlur)->Apply(screens)->Unit(benchmark::kMicrosecond);
BENCHMARK(firstFrame)->Apply(screensAndLengths)->Unit(benchmark::kMicrosecond);

}  // namespace
