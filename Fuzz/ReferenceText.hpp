#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace SnakeCore {

/// Scalars of a text; every broken sequence is one U+FFFD for each longest start of a character.
[[nodiscard]] std::vector<char32_t> scalarsOf(std::string_view bytes);

[[nodiscard]] std::string utf8Of(const std::vector<char32_t>& scalars);

/// The characters people see, by the published rules applied one by one between each two scalars:
/// slow, and nothing in common with the library's state machine but the table of classes.
[[nodiscard]] std::vector<std::vector<char32_t>> charactersOf(const std::vector<char32_t>& scalars);

[[nodiscard]] bool isWhiteSpace(char32_t scalar);

}  // namespace SnakeCore
