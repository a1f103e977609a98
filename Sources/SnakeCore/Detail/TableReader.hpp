#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "SnakeCore/HighScore.hpp"

namespace SnakeCore {

/// Reads the stored form of a table: all of its entries in their order, or nothing at all.
[[nodiscard]] std::optional<std::vector<HighScore>> readTable(std::string_view json);

}  // namespace SnakeCore
