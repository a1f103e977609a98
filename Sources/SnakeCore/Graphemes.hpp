#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

/// Splitting UTF-8 text into user-perceived characters (extended grapheme clusters, UAX #29). Each
/// ill-formed sequence counts as one character. All functions throw `std::length_error` if the text
/// is 2 GiB or longer, and `std::runtime_error` if ICU fails, for example because its data is
/// missing.
namespace SnakeCore {

/// Calls `visit` for each character in order until it returns false. Not reentrant: `visit` must
/// not call a function of this header.
void forEachCharacter(std::string_view utf8, const std::function<bool(std::string_view)>& visit);

/// The first `count` characters of `utf8`, or all of it if there are fewer.
[[nodiscard]] std::string_view firstCharacters(std::string_view utf8, std::size_t count);

}  // namespace SnakeCore
