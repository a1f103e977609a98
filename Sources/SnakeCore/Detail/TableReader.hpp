#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "SnakeCore/HighScore.hpp"

namespace SnakeCore::Detail {

/// Parses the JSON of a `HighScores` table: every entry, in order, or nothing if any part of it is
/// invalid.
[[nodiscard]] std::optional<std::vector<HighScore>> readTable(std::string_view json);

}  // namespace SnakeCore::Detail
