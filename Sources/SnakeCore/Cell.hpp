#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace SnakeCore {

/// A square of the grid: column `x` from the left, row `y` from the top, both counted from 0.
/// Coordinates outside the board are allowed.
struct Cell {
    std::int64_t x = 0;
    std::int64_t y = 0;

    friend constexpr bool operator==(const Cell&, const Cell&) = default;
};

}  // namespace SnakeCore

template <>
struct std::hash<SnakeCore::Cell> {
    /// Combines the hashes of `x` and `y`, in this order, as boost::hash_combine does.
    std::size_t operator()(const SnakeCore::Cell& cell) const noexcept {
        constexpr std::hash<std::int64_t> coordinate;
        // 2^64 divided by the golden ratio; a 32-bit size_t keeps the low half.
        constexpr auto spread = static_cast<std::size_t>(std::uint64_t{0x9e3779b97f4a7c15U});
        const std::size_t seed = coordinate(cell.x) + spread;
        return seed ^ (coordinate(cell.y) + spread + (seed << 6U) + (seed >> 2U));
    }
};
