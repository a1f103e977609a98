#include "Painting/Board/FruitGlow.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The shadow's radius, in cells.
constexpr double sigma = 0.5;
constexpr int entries = 256;

// The mean of the Gaussian over the disc: rings around the disc's centre, each ring's share at
// `distance` being a modified Bessel function.
double blurredDisc(double distance) {
    constexpr int rings = 64;
    constexpr double thickness = FruitGlow::ballRadius / rings;
    double sum = 0;
    for (int i = 0; i < rings; ++i) {
        const double ring = (i + 0.5) * thickness;
        const double fall = (distance * distance + ring * ring) / (2 * sigma * sigma);
        const double bessel = std::cyl_bessel_i(0.0, distance * ring / (sigma * sigma));
        sum += std::exp(-fall) * bessel * ring * thickness;
    }
    return sum / (sigma * sigma);
}

std::array<float, entries + 1> profile() {
    std::array<float, entries + 1> values{};
    for (int i = 0; i < entries; ++i) {
        values[static_cast<std::size_t>(i)] =
            static_cast<float>(blurredDisc(FruitGlow::radius * i / entries));
    }
    return values;
}

}  // namespace

float FruitGlow::strength(double distance) {
    static const std::array<float, entries + 1> values = profile();
    const double at = std::min(distance / radius, 1.0) * entries;
    const int entry = std::min(static_cast<int>(at), entries - 1);
    const float before = values[static_cast<std::size_t>(entry)];
    const float after = values[static_cast<std::size_t>(entry) + 1];
    return before + (after - before) * static_cast<float>(at - entry);
}
