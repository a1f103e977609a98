#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "SnakeCore/Cell.hpp"

namespace SnakeCore::Detail {

/// The cells of a board that the snake occupies: one bit per cell in row-major order, so that
/// finding a random free cell is popcount and select. Every `Cell` passed in must be on the board.
class Occupancy {
public:
    /// A board with every cell free. Aborts if the number of cells overflows; throws if the bits
    /// cannot be allocated.
    Occupancy(std::int64_t width, std::int64_t height);

    [[nodiscard]] bool taken(Cell cell) const { return (words_[word(cell)] & mask(cell)) != 0; }
    /// `cell` must be free.
    void take(Cell cell) {
        words_[word(cell)] |= mask(cell);
        --free_;
    }
    /// `cell` must be taken.
    void release(Cell cell) {
        words_[word(cell)] &= ~mask(cell);
        ++free_;
    }

    [[nodiscard]] std::int64_t freeCount() const { return free_; }
    /// The free cell number `index` in row-major order; 0 <= `index` < `freeCount()`.
    [[nodiscard]] Cell freeCell(std::int64_t index) const;

    friend bool operator==(const Occupancy&, const Occupancy&) = default;

private:
    [[nodiscard]] std::size_t bit(Cell cell) const {
        return static_cast<std::size_t>(cell.y * width_ + cell.x);
    }
    [[nodiscard]] std::size_t word(Cell cell) const { return bit(cell) / 64; }
    [[nodiscard]] std::uint64_t mask(Cell cell) const {
        return std::uint64_t{1} << (bit(cell) % 64);
    }

    std::int64_t width_;
    std::int64_t free_;
    std::vector<std::uint64_t> words_;
};

}  // namespace SnakeCore::Detail
