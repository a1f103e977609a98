#pragma once

#include <cstdint>
#include <cstring>

namespace Painting {

/// The end of the run of bytes equal to `value` that starts at `begin`.
[[nodiscard]] inline int endOfEqual(const std::uint8_t* bytes, std::uint8_t value, int begin,
                                    int end) {
    constexpr int step = 8;
    const std::uint64_t pattern = value * 0x0101010101010101U;
    std::uint64_t word = 0;
    while (begin + step <= end) {
        std::memcpy(&word, bytes + begin, step);
        if (word != pattern) {
            break;
        }
        begin += step;
    }
    while (begin < end && bytes[begin] == value) {
        ++begin;
    }
    return begin;
}

/// The end of the run of bytes other than `value` that starts at `begin`.
[[nodiscard]] inline int endOfOther(const std::uint8_t* bytes, std::uint8_t value, int begin,
                                    int end) {
    const void* const found =
        std::memchr(bytes + begin, value, static_cast<std::size_t>(end - begin));
    return found == nullptr ? end
                            : static_cast<int>(static_cast<const std::uint8_t*>(found) - bytes);
}

}  // namespace Painting
