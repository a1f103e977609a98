#pragma once

#include <span>
#include <string>

#include "SnakeCore/HighScore.hpp"

namespace SnakeCore::Detail {

/// The JSON of a `HighScores` table. Throws `std::invalid_argument` if a date is not finite or a
/// text is not UTF-8.
[[nodiscard]] std::string writeTable(std::span<const HighScore> entries);

}  // namespace SnakeCore::Detail
