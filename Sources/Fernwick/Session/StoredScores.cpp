#include "Session/StoredScores.hpp"

#include <string_view>

#include "Session/Preferences.hpp"

SnakeCore::HighScores storedScores(const Preferences& preferences) {
    const std::optional<QByteArray> bytes = preferences.bytes(highScoresKey);
    return bytes ? SnakeCore::HighScores(std::string_view(bytes->constData(),
                                                          static_cast<std::size_t>(bytes->size())))
                 : SnakeCore::HighScores();
}

bool storedScoresAreDamaged(const Preferences& preferences, const SnakeCore::HighScores& read) {
    return preferences.contains(highScoresKey) && read.entries().empty() &&
           preferences.bytes(highScoresKey) != QByteArray::fromStdString(read.encoded());
}

std::optional<std::string> exportedScores(const Preferences& preferences) {
    const SnakeCore::HighScores scores = storedScores(preferences);
    return storedScoresAreDamaged(preferences, scores) ? std::nullopt
                                                       : std::optional(scores.encoded());
}
