#pragma once

#include <array>
#include <cstddef>

#include "SnakeCore/Direction.hpp"

namespace SnakeCore {

/// The turns asked for and not yet made, oldest first; there is room for two, so that a quick
/// double press within one tick is kept.
class TurnQueue {
public:
    [[nodiscard]] bool empty() const { return size_ == 0; }
    [[nodiscard]] bool full() const { return size_ == turns_.size(); }
    /// The newest turn; not of an empty queue.
    [[nodiscard]] Direction back() const { return turns_[size_ - 1]; }

    /// Not on a full queue.
    void push(Direction turn) { turns_[size_++] = turn; }

    /// Takes the oldest turn off; not of an empty queue.
    [[nodiscard]] Direction pop() {
        const Direction first = turns_[0];
        // The place left behind goes back to its first value: equal queues are equal throughout.
        turns_ = {turns_[1], Direction{}};
        --size_;
        return first;
    }

    friend bool operator==(const TurnQueue&, const TurnQueue&) = default;

private:
    std::array<Direction, 2> turns_{};
    std::size_t size_ = 0;
};

}  // namespace SnakeCore
