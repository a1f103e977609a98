#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "SnakeCore/Cell.hpp"

namespace SnakeCore {

/// Which cells of a board are taken: one bit a cell, in row-major order.
class Occupancy {
public:
    /// A board with every cell free. Stops the program when the number of cells overflows; throws
    /// when there is no memory for the bits.
    Occupancy(std::int64_t width, std::int64_t height);

    /// `cell` has to lie on the board, here and below.
    [[nodiscard]] bool taken(Cell cell) const { return (words_[word(cell)] & mask(cell)) != 0; }
    /// Takes a free cell.
    void take(Cell cell) {
        words_[word(cell)] |= mask(cell);
        --free_;
    }
    /// Frees a taken cell.
    void release(Cell cell) {
        words_[word(cell)] &= ~mask(cell);
        ++free_;
    }

    [[nodiscard]] std::int64_t freeCount() const { return free_; }
    /// The free cell at `index` among all free cells, row by row; 0 <= `index` < `freeCount()`.
    [[nodiscard]] Cell freeCell(std::int64_t index) const;

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

}  // namespace SnakeCore
