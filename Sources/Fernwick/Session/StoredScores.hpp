#pragma once

#include <QString>
#include <optional>
#include <string>

#include "SnakeCore/HighScores.hpp"

class Preferences;

/// The key under which the settings hold the high-score table, as JSON.
inline const QString highScoresKey = QStringLiteral("high-scores-v1");

/// The stored table; an empty one if there is none or if it cannot be read.
[[nodiscard]] SnakeCore::HighScores storedScores(const Preferences& preferences);

/// Whether there is a stored table that was read as an empty one but is not. `read` is what
/// `storedScores()` returned.
[[nodiscard]] bool storedScoresAreDamaged(const Preferences& preferences,
                                          const SnakeCore::HighScores& read);

/// The stored table as JSON; nothing if there is one that cannot be read.
[[nodiscard]] std::optional<std::string> exportedScores(const Preferences& preferences);
