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

/// Every recorded result of every pace, oldest first and without limit, and its stored form: a
/// compact JSON array of objects with the members "id", "name", "score", "pace" and "date".
class HighScores {
public:
    /// The most characters, as people count them, that a name keeps.
    static constexpr std::size_t longestName = 24;

    /// An empty table.
    HighScores() = default;

    /// The table that `encoded()` wrote. Empty when there is no data, and when anything at all is
    /// wrong with it: there is no partial table.
    explicit HighScores(std::optional<std::string_view> data);

    /// The stored form. Throws `std::invalid_argument` when an entry has a date that is not finite
    /// or a text that is not UTF-8.
    [[nodiscard]] std::string encoded() const;

    /// The name as it is stored: white space at both ends gone, between words one space, and of
    /// that the first `longestName` characters. What is not UTF-8 becomes U+FFFD. The
    /// result may be empty, and may end in a space if that is the last of so many.
    [[nodiscard]] static std::string cleanName(std::string_view name);

    /// Adds a result under its cleaned name. False, and the table as it was, when the cleaned name
    /// is empty, the score negative or the id in the table already.
    bool record(UUID id, std::string_view name, std::int64_t score, std::string_view pace,
                Date date);

    /// The top ten of one pace: higher scores first, among equals the earlier date, then the
    /// smaller id.
    [[nodiscard]] std::vector<HighScore> leaders(std::string_view pace) const;

    /// In the order recorded; valid until the table changes.
    [[nodiscard]] const std::vector<HighScore>& entries() const { return entries_; }

    friend bool operator==(const HighScores&, const HighScores&) = default;

private:
    std::vector<HighScore> entries_;
};

}  // namespace SnakeCore
