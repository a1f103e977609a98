#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

/// Text by the characters people see (extended grapheme clusters), not by bytes. All functions take
/// UTF-8, count each broken sequence as a character of its own, and throw `std::length_error` on
/// texts of 2 GiB and more and `std::runtime_error` where the library's own data is missing.
namespace SnakeCore {

/// Calls `visit` with one character after the other until it returns false. `visit` may not use
/// this header itself.
void forEachCharacter(std::string_view utf8, const std::function<bool(std::string_view)>& visit);

/// The start of `utf8` that holds its first `count` characters; all of it if there are fewer.
[[nodiscard]] std::string_view firstCharacters(std::string_view utf8, std::size_t count);

}  // namespace SnakeCore
