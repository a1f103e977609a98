#include "SnakeCore/HighScores.hpp"

#include <unicode/uchar.h>

#include <algorithm>
#include <compare>
#include <functional>
#include <utility>

#include "SnakeCore/Detail/TableReader.hpp"
#include "SnakeCore/Detail/TableWriter.hpp"
#include "SnakeCore/Detail/Utf8.hpp"
#include "SnakeCore/Graphemes.hpp"

namespace SnakeCore {
namespace {

constexpr std::size_t leaderCount = 10;

/// A character is white space if its first code point is, even if combining marks follow it.
bool isWhiteSpace(std::string_view character) {
    return u_isUWhiteSpace(static_cast<UChar32>(Detail::firstCodePoint(character))) != 0;
}

bool ranksBefore(const HighScore& left, const HighScore& right) {
    if (left.score != right.score) {
        return left.score > right.score;
    }
    // Unlike operator<, std::weak_order() stays a strict weak order if a date is NaN.
    if (const auto dates = std::weak_order(left.date.seconds, right.date.seconds); dates != 0) {
        return dates < 0;
    }
    return left.id < right.id;
}

}  // namespace

HighScores::HighScores(std::optional<std::string_view> data) {
    if (data) {
        entries_ = Detail::readTable(*data).value_or(std::vector<HighScore>());
    }
}

std::string HighScores::encoded() const {
    return Detail::writeTable(entries_);
}

std::string HighScores::cleanName(std::string_view name) {
    const std::string text = Detail::repairedUtf8(name);
    std::string joined;
    bool atWordStart = false;
    forEachCharacter(text, [&](std::string_view character) {
        if (isWhiteSpace(character)) {
            atWordStart = !joined.empty();
            return true;
        }
        if (std::exchange(atWordStart, false)) {
            joined += ' ';
        }
        joined += character;
        return true;
    });
    // Count in the joined text: a combining mark at the start of a word forms one character with
    // the space before it.
    return std::string(firstCharacters(joined, longestName));
}

bool HighScores::record(UUID id, std::string_view name, std::int64_t score, std::string_view pace,
                        Date date) {
    std::string cleaned = cleanName(name);
    if (cleaned.empty() || score < 0 ||
        std::ranges::find(entries_, id, &HighScore::id) != entries_.end()) {
        return false;
    }
    entries_.push_back({id, std::move(cleaned), score, std::string(pace), date});
    return true;
}

std::vector<HighScore> HighScores::leaders(std::string_view pace) const {
    // One pass over the table, inserting into the sorted best ten so far. Equal entries keep the
    // table's order because upper_bound() inserts after them.
    std::vector<std::reference_wrapper<const HighScore>> best;
    best.reserve(leaderCount + 1);
    for (const HighScore& entry : entries_) {
        if (entry.pace == pace &&
            (best.size() < leaderCount || ranksBefore(entry, best.back().get()))) {
            best.insert(std::upper_bound(best.begin(), best.end(), entry, ranksBefore), entry);
            best.resize(std::min(best.size(), leaderCount), entry);
        }
    }
    return {best.begin(), best.end()};
}

}  // namespace SnakeCore
