#pragma once

#include <string>
#include <string_view>

namespace SnakeCore {

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// The text with U+FFFD in place of every byte sequence that is not UTF-8, one for each longest
/// start of a character.
[[nodiscard]] std::string repairedUtf8(std::string_view bytes);

/// The first scalar of a text that is UTF-8 and not empty.
[[nodiscard]] char32_t firstScalar(std::string_view utf8);

}  // namespace SnakeCore
