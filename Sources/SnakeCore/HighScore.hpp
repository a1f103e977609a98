#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "SnakeCore/Date.hpp"
#include "SnakeCore/UUID.hpp"

namespace SnakeCore {

/// One saved result. Made only by a table, when it records a run or reads its stored form.
struct HighScore {
    /// One per finished run.
    UUID id;
    /// As cleaned when recorded; UTF-8.
    std::string name;
    std::int64_t score;
    /// The word for the speed of the run; UTF-8.
    std::string pace;
    /// When the run was recorded.
    Date date;

    friend bool operator==(const HighScore&, const HighScore&) = default;

private:
    friend class HighScores;
    friend class TableReader;

    HighScore(UUID itsId, std::string itsName, std::int64_t itsScore, std::string itsPace,
              Date itsDate)
        : id(itsId),
          name(std::move(itsName)),
          score(itsScore),
          pace(std::move(itsPace)),
          date(itsDate) {}
};

}  // namespace SnakeCore
