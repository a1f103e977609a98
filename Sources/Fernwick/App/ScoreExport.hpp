#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// The high-score table in the settings file at `settings`, as JSON and a line feed; that of an
/// empty table if there is no file or no table in it. Nothing if either cannot be read. Changes no
/// file, and can be called while the game is running.
[[nodiscard]] std::optional<std::string> exportScores(const std::filesystem::path& settings);
