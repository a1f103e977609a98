#include "SnakeCore/Snake.hpp"

#include <bit>

namespace SnakeCore {

Snake::Snake(std::initializer_list<Cell> cells) : ring_(cells), size_(cells.size()) {
    ring_.resize(std::bit_ceil(size_));
}

void Snake::grow() {
    // Laid out anew from place 0, so that the cells stay in one run after the doubling.
    std::vector<Cell> larger(2 * ring_.size());
    std::copy(begin(), end(), larger.begin());
    ring_ = std::move(larger);
    head_ = 0;
}

}  // namespace SnakeCore
