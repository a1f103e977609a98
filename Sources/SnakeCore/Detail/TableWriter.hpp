#pragma once

#include <span>
#include <string>

#include "SnakeCore/HighScore.hpp"

namespace SnakeCore {

/// The stored form of a table. Throws `std::invalid_argument` on a date that is not finite and on a
/// text that is not UTF-8.
[[nodiscard]] std::string writeTable(std::span<const HighScore> entries);

}  // namespace SnakeCore
