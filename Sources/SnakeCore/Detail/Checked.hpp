#pragma once

#include <cstdint>
#include <cstdlib>

/// Arithmetic and preconditions that abort the program on failure: either is a bug in the caller.
namespace SnakeCore::Detail {

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

/// Returns `value`; aborts if it is below `least`.
[[nodiscard]] inline std::int64_t requireAtLeast(std::int64_t value, std::int64_t least) {
    if (value < least) {
        std::abort();
    }
    return value;
}

}  // namespace SnakeCore::Detail
