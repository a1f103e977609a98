#include "SnakeCore/Detail/Occupancy.hpp"

#include <bit>

#include "SnakeCore/Detail/Checked.hpp"

namespace SnakeCore::Detail {

Occupancy::Occupancy(std::int64_t width, std::int64_t height)
    : width_(width),
      free_(checkedProduct(width, height)),
      words_(static_cast<std::size_t>(free_) / 64 + 1) {}

Cell Occupancy::freeCell(std::int64_t index) const {
    std::size_t word = 0;
    int freeHere = std::popcount(~words_[word]);
    while (index >= freeHere) {
        index -= freeHere;
        freeHere = std::popcount(~words_[++word]);
    }
    std::uint64_t freeBits = ~words_[word];
    for (; index > 0; --index) {
        freeBits &= freeBits - 1;  // clears the lowest set bit
    }
    const auto bit = static_cast<std::int64_t>(word) * 64 + std::countr_zero(freeBits);
    return {bit % width_, bit / width_};
}

}  // namespace SnakeCore::Detail
