#pragma once

#include <cstdint>
#include <cstdlib>

/// Arithmetic and preconditions that end the program when they fail: a caller that breaks them is
/// wrong, and a game with wrapped numbers is worth less than none.
namespace SnakeCore {

[[nodiscard]] inline std::int64_t checkedSum(std::int64_t left, std::int64_t right) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(left, right, &sum)) {
        std::abort();
    }
    return sum;
}

[[nodiscard]] inline std::int64_t checkedProduct(std::int64_t left, std::int64_t right) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(left, right, &product)) {
        std::abort();
    }
    return product;
}

/// `value` itself, unless it is below `least`.
[[nodiscard]] inline std::int64_t requireAtLeast(std::int64_t value, std::int64_t least) {
    if (value < least) {
        std::abort();
    }
    return value;
}

}  // namespace SnakeCore
