#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Painting {

/// A two-dimensional array of values, stored row by row and initialized to zero.
template <typename T>
class Plane {
public:
    Plane() = default;
    Plane(int width, int height)
        : width_(width),
          height_(height),
          values_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }

    [[nodiscard]] T& at(int x, int y) { return row(y)[x]; }
    [[nodiscard]] const T& at(int x, int y) const { return row(y)[x]; }

    /// Plain pointers rather than spans: the release build checks every index into a span, which
    /// keeps loops from being vectorized.
    [[nodiscard]] T* row(int y) { return values_.data() + offset(y); }
    [[nodiscard]] const T* row(int y) const { return values_.data() + offset(y); }

    void fill(const T& value) { std::ranges::fill(values_, value); }

private:
    [[nodiscard]] std::ptrdiff_t offset(int y) const {
        return static_cast<std::ptrdiff_t>(y) * width_;
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<T> values_;
};

}  // namespace Painting
