#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "SnakeCore/HighScores.hpp"
#include "SnakeCore/PeakMemory.hpp"

namespace SnakeCore {
namespace {

constexpr std::array<std::string_view, 3> paces{"Gentle", "Classic", "Swift"};

/// The JSON of a table of plausible runs. Built as text because record() is linear in the number of
/// entries.
std::string tableJson(std::int64_t entries) {
    constexpr std::array<std::string_view, 4> names{"Pip", "Pip Green", "Zoë", "a gardener 🌱"};
    std::mt19937 generator(1);
    std::string json = "[";
    for (std::int64_t i = 0; i < entries; ++i) {
        json += i == 0 ? "" : ",";
        json += "{\"id\":\"" + UUID::random().string() + "\",\"name\":\"";
        json += names[generator() % names.size()];
        json += "\",\"score\":" + std::to_string(10 * (generator() % 613)) + ",\"pace\":\"";
        json += paces[generator() % paces.size()];
        json += "\",\"date\":" + std::to_string(784598400 + 40 * i) + "." +
                std::to_string(100000 + generator() % 900000) + "}";
    }
    return json + "]";
}

/// Built once per size.
const std::string& cachedTable(std::int64_t entries) {
    static std::map<std::int64_t, std::string> tables;
    const auto [position, isNew] = tables.try_emplace(entries);
    if (isNew) {
        position->second = tableJson(entries);
    }
    return position->second;
}

HighScores tableOf(std::int64_t entries) {
    return HighScores(std::string_view(cachedTable(entries)));
}

void reportMemory(benchmark::State& state) {
    state.counters["peak_MB"] = static_cast<double>(PeakMemory::bytes()) / 1e6;
}

void load(benchmark::State& state) {
    const std::string_view data = cachedTable(state.range(0));
    PeakMemory::reset();
    for (auto _ : state) {
        const HighScores table(data);
        if (std::ssize(table.entries()) != state.range(0)) {
            state.SkipWithError("the table did not load");
        }
    }
    reportMemory(state);
    state.SetBytesProcessed(state.iterations() * std::ssize(data));
}

void encode(benchmark::State& state) {
    const HighScores table = tableOf(state.range(0));
    PeakMemory::reset();
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.encoded());
    }
    reportMemory(state);
}

void leaders(benchmark::State& state) {
    const HighScores table = tableOf(state.range(0));
    PeakMemory::reset();
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.leaders("Classic"));
    }
    reportMemory(state);
}

/// Restores the table whenever it has grown by a tenth, to keep its size about the same.
void record(benchmark::State& state) {
    const HighScores original = tableOf(state.range(0));
    std::vector<UUID> ids;
    for (std::int64_t i = 0; i < state.range(0) / 10; ++i) {
        ids.push_back(UUID::random());
    }
    HighScores table = original;
    PeakMemory::reset();
    std::size_t next = 0;
    for (auto _ : state) {
        if (next == ids.size()) {
            state.PauseTiming();
            table = original;
            next = 0;
            state.ResumeTiming();
        }
        if (!table.record(ids[next++], "Pip Green", 120, "Classic", {784598400.5})) {
            state.SkipWithError("the run was not recorded");
        }
    }
    reportMemory(state);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(100)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(load)->Apply(sizes);
BENCHMARK(encode)->Apply(sizes);
BENCHMARK(leaders)->Apply(sizes);
BENCHMARK(record)->Apply(sizes);

}  // namespace
}  // namespace SnakeCore
