#include "SnakeCore/Detail/Utf8.hpp"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace SnakeCore::Detail {
namespace {

/// Decodes the code point at `index` and advances past it; negative if it is ill-formed.
UChar32 nextCodePoint(std::string_view bytes, std::size_t& index) {
    UChar32 codePoint = 0;
    // ICU's macro contains implicit narrowing conversions.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
    U8_NEXT(bytes.data(), index, bytes.size(), codePoint);
#pragma GCC diagnostic pop
    return codePoint;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    constexpr auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    const auto firstOther = std::ranges::find_if_not(bytes, isAscii);
    for (auto index = static_cast<std::size_t>(firstOther - bytes.begin()); index < bytes.size();) {
        if (nextCodePoint(bytes, index) < 0) {
            return false;
        }
    }
    return true;
}

void appendUtf8(std::string& text, char32_t codePoint) {
    std::array<char, U8_MAX_LENGTH> bytes{};
    std::size_t length = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
    U8_APPEND_UNSAFE(bytes, length, codePoint);
#pragma GCC diagnostic pop
    text.append(bytes.data(), length);
}

std::string repairedUtf8(std::string_view bytes) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    std::string repaired;
    repaired.reserve(bytes.size());
    for (std::size_t index = 0; index < bytes.size();) {
        const std::size_t start = index;
        const bool illFormed = nextCodePoint(bytes, index) < 0;
        repaired += illFormed ? replacement : bytes.substr(start, index - start);
    }
    return repaired;
}

char32_t firstCodePoint(std::string_view utf8) {
    std::size_t index = 0;
    return static_cast<char32_t>(nextCodePoint(utf8, index));
}

}  // namespace SnakeCore::Detail
