#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace SnakeCore {

/// A square of the board: column `x` from the left, row `y` from the top, both from 0.
/// Any value is legal, also one outside the board.
struct Cell {
    std::int64_t x = 0;
    std::int64_t y = 0;

    friend constexpr bool operator==(const Cell&, const Cell&) = default;
};

}  // namespace SnakeCore

template <>
struct std::hash<SnakeCore::Cell> {
    std::size_t operator()(const SnakeCore::Cell& cell) const noexcept {
        constexpr std::hash<std::int64_t> coordinate;
        // 2^64 divided by the golden ratio; where sizes are smaller, the low bits of it do.
        constexpr auto spread = static_cast<std::size_t>(std::uint64_t{0x9e3779b97f4a7c15U});
        const std::size_t seed = coordinate(cell.x) + spread;
        return seed ^ (coordinate(cell.y) + spread + (seed << 6U) + (seed >> 2U));
    }
};
