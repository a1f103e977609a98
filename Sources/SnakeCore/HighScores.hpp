#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SnakeCore/Date.hpp"
#include "SnakeCore/HighScore.hpp"
#include "SnakeCore/UUID.hpp"

namespace SnakeCore {

/// The high-score table: every recorded run of every pace, oldest first, without limit. It is
/// stored as a compact JSON array of objects with the members "id", "name", "score", "pace" and
/// "date".
class HighScores {
public:
    /// The maximum length of a name in user-perceived characters.
    static constexpr std::size_t longestName = 24;

    /// An empty table.
    HighScores() = default;

    /// Reads what `encoded()` wrote. The table is empty if there is no data or if any part of it is
    /// invalid; it is never read partially.
    explicit HighScores(std::optional<std::string_view> data);

    /// The table as JSON. Throws `std::invalid_argument` if a date is not finite or a pace is not
    /// UTF-8.
    [[nodiscard]] std::string encoded() const;

    /// The name as `record()` stores it: white space trimmed, white space between words reduced to
    /// one space, then cut to `longestName` characters. Ill-formed UTF-8 is replaced by U+FFFD. The
    /// result may be empty, and ends in a space if the cut falls right after one.
    [[nodiscard]] static std::string cleanName(std::string_view name);

    /// Adds a run under its cleaned name. Returns false and changes nothing if the cleaned name is
    /// empty, the score negative, or the id already recorded.
    bool record(UUID id, std::string_view name, std::int64_t score, std::string_view pace,
                Date date);

    /// The best ten runs of a pace: by score, descending, then by date, then by id.
    [[nodiscard]] std::vector<HighScore> leaders(std::string_view pace) const;

    /// All runs in the order recorded; valid until the table changes.
    [[nodiscard]] const std::vector<HighScore>& entries() const { return entries_; }

    friend bool operator==(const HighScores&, const HighScores&) = default;

private:
    std::vector<HighScore> entries_;
};

}  // namespace SnakeCore
