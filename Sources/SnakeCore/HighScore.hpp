#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "SnakeCore/Date.hpp"
#include "SnakeCore/UUID.hpp"

namespace SnakeCore {

namespace Detail {
class TableReader;
}

/// One entry of `HighScores`. Only that class creates entries, by recording a run or reading JSON.
struct HighScore {
    /// Identifies the run.
    UUID id;
    /// The player's name in UTF-8, as cleaned when it was recorded.
    std::string name;
    std::int64_t score;
    /// The name of the speed that was played, in UTF-8.
    std::string pace;
    /// When the run was recorded.
    Date date;

    friend bool operator==(const HighScore&, const HighScore&) = default;

private:
    friend class HighScores;
    friend class Detail::TableReader;

    HighScore(UUID itsId, std::string itsName, std::int64_t itsScore, std::string itsPace,
              Date itsDate)
        : id(itsId),
          name(std::move(itsName)),
          score(itsScore),
          pace(std::move(itsPace)),
          date(itsDate) {}
};

}  // namespace SnakeCore
