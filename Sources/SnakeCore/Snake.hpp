#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <utility>
#include <vector>

#include "SnakeCore/Cell.hpp"

namespace SnakeCore {

/// The cells of a snake, head first: a random access range that grows at the head and shrinks at
/// the tail, both at the same cost for any length. Never empty.
class Snake {
public:
    class Iterator;
    using value_type = Cell;
    using const_iterator = Iterator;

    /// The cells in order, head first; there has to be one.
    Snake(std::initializer_list<Cell> cells);

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    /// The cell `index` places behind the head; `index` has to be below `size()`.
    [[nodiscard]] const Cell& operator[](std::size_t index) const {
        return ring_[(head_ + index) & (ring_.size() - 1)];
    }
    [[nodiscard]] const Cell& front() const { return ring_[head_]; }
    [[nodiscard]] const Cell& back() const { return (*this)[size_ - 1]; }
    [[nodiscard]] Iterator begin() const;
    [[nodiscard]] Iterator end() const;

    /// Adds a new head.
    void pushFront(Cell head) {
        if (size_ == ring_.size()) {
            grow();
        }
        head_ = (head_ - 1) & (ring_.size() - 1);
        ring_[head_] = head;
        ++size_;
    }

    /// Drops the tail; another cell has to remain.
    void popBack() { --size_; }

    friend bool operator==(const Snake& left, const Snake& right);

private:
    void grow();

    // The number of places is a power of two, so that wrapping round is one mask.
    std::vector<Cell> ring_;
    std::size_t head_ = 0;
    std::size_t size_;
};

class Snake::Iterator {
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = Cell;
    using difference_type = std::ptrdiff_t;
    using pointer = const Cell*;
    using reference = const Cell&;

    Iterator() = default;
    Iterator(const Snake* snake, difference_type index) : snake_(snake), index_(index) {}

    reference operator*() const { return (*snake_)[static_cast<std::size_t>(index_)]; }
    pointer operator->() const { return &**this; }
    reference operator[](difference_type offset) const { return *(*this + offset); }

    Iterator& operator++() { return *this += 1; }
    Iterator& operator--() { return *this -= 1; }
    Iterator operator++(int) { return std::exchange(*this, *this + 1); }
    Iterator operator--(int) { return std::exchange(*this, *this - 1); }
    Iterator& operator+=(difference_type offset) {
        index_ += offset;
        return *this;
    }
    Iterator& operator-=(difference_type offset) { return *this += -offset; }

    friend Iterator operator+(Iterator place, difference_type offset) { return place += offset; }
    friend Iterator operator+(difference_type offset, Iterator place) { return place += offset; }
    friend Iterator operator-(Iterator place, difference_type offset) { return place -= offset; }
    friend difference_type operator-(Iterator left, Iterator right) {
        return left.index_ - right.index_;
    }
    friend bool operator==(Iterator left, Iterator right) { return left.index_ == right.index_; }
    friend auto operator<=>(Iterator left, Iterator right) { return left.index_ <=> right.index_; }

private:
    const Snake* snake_ = nullptr;
    difference_type index_ = 0;
};

inline Snake::Iterator Snake::begin() const {
    return {this, 0};
}
inline Snake::Iterator Snake::end() const {
    return {this, static_cast<std::ptrdiff_t>(size_)};
}

inline bool operator==(const Snake& left, const Snake& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end());
}

}  // namespace SnakeCore
