#include "SnakeCore/Detail/Utf8.hpp"

#include <unicode/utf8.h>

#include <cstddef>

namespace SnakeCore {
namespace {

/// Reads one character at `index` and moves behind it; negative if there is none.
UChar32 nextScalar(std::string_view bytes, std::size_t& index) {
    UChar32 scalar = 0;
    // The library's macro narrows within itself.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
    U8_NEXT(bytes.data(), index, bytes.size(), scalar);
#pragma GCC diagnostic pop
    return scalar;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    for (std::size_t index = 0; index < bytes.size();) {
        if (nextScalar(bytes, index) < 0) {
            return false;
        }
    }
    return true;
}

std::string repairedUtf8(std::string_view bytes) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    std::string repaired;
    repaired.reserve(bytes.size());
    for (std::size_t index = 0; index < bytes.size();) {
        const std::size_t start = index;
        const bool broken = nextScalar(bytes, index) < 0;
        repaired += broken ? replacement : bytes.substr(start, index - start);
    }
    return repaired;
}

char32_t firstScalar(std::string_view utf8) {
    std::size_t index = 0;
    return static_cast<char32_t>(nextScalar(utf8, index));
}

}  // namespace SnakeCore
