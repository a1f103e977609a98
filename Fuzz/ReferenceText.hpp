#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace SnakeCore {

/// Decodes UTF-8. Ill-formed sequences become U+FFFD, one per maximal subpart.
[[nodiscard]] std::vector<char32_t> codePointsOf(std::string_view bytes);

[[nodiscard]] std::string utf8Of(const std::vector<char32_t>& codePoints);

/// Splits a text into extended grapheme clusters by applying the rules of UAX #29 between each two
/// code points. Shares only the character properties with ICU's break iterator, not its state
/// machine.
[[nodiscard]] std::vector<std::vector<char32_t>> charactersOf(
    const std::vector<char32_t>& codePoints);

[[nodiscard]] bool isWhiteSpace(char32_t scalar);

}  // namespace SnakeCore
