#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "SnakeCore/HighScore.hpp"

namespace SnakeCore::Detail {

/// Parses the JSON of a `HighScores` table: every entry, in order, or nothing if any part of it is
/// invalid.
[[nodiscard]] std::optional<std::vector<HighScore>> readTable(std::string_view json);

/// The JSON of a `HighScores` table. Throws `std::invalid_argument` if a date is not finite or a
/// text is not UTF-8.
[[nodiscard]] std::string writeTable(std::span<const HighScore> entries);

}  // namespace SnakeCore::Detail
