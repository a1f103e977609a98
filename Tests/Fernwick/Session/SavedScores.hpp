#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "SnakeCore/HighScores.hpp"

/// Names and scores of high-score entries.
using SavedScores = std::vector<std::pair<std::string, std::int64_t>>;

/// A table with these entries, all at the pace "Classic".
inline SnakeCore::HighScores scoreTable(const SavedScores& saved) {
    SnakeCore::HighScores table;
    for (const auto& [name, score] : saved) {
        table.record(SnakeCore::UUID::random(), name, score, "Classic", SnakeCore::Date{0});
    }
    return table;
}
