#pragma once

#include <string>
#include <string_view>

#include "SnakeCore/HighScores.hpp"

namespace SnakeCore {

/// An entry as it stands in the stored form; each member is JSON and can be written otherwise.
struct EntryText {
    std::string id = R"("0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30")";
    std::string name = R"("Pip")";
    std::string score = "120";
    std::string pace = R"("Classic")";
    std::string date = "784598400.5";
    /// Put behind the five members.
    std::string more;

    [[nodiscard]] std::string text() const {
        return R"({"id":)" + id + R"(,"name":)" + name + R"(,"score":)" + score + R"(,"pace":)" +
               pace + R"(,"date":)" + date + more + "}";
    }
};

inline std::string tableOf(const EntryText& entry) {
    return "[" + entry.text() + "]";
}

/// How many entries are read from a stored form.
inline std::size_t entriesIn(std::string_view data) {
    return HighScores(data).entries().size();
}

/// The identity whose text ends in `number`, so that they can be told apart and put in order.
inline UUID identity(unsigned number) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "00000000-0000-4000-8000-000000000000";
    for (std::size_t i = text.size(); number > 0; number /= 16) {
        text[--i] = digits[number % 16];
    }
    return UUID::parse(text).value();
}

}  // namespace SnakeCore
