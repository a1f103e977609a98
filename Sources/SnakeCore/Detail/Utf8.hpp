#pragma once

#include <string>
#include <string_view>

namespace SnakeCore::Detail {

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// `codePoint` is not a surrogate and at most U+10FFFF.
void appendUtf8(std::string& text, char32_t codePoint);

/// `bytes` with each ill-formed sequence replaced by U+FFFD, one per maximal subpart as Unicode
/// recommends.
[[nodiscard]] std::string repairedUtf8(std::string_view bytes);

/// The first code point of a valid, non-empty UTF-8 text.
[[nodiscard]] char32_t firstCodePoint(std::string_view utf8);

}  // namespace SnakeCore::Detail
