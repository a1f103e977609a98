#pragma once

#include <string>
#include <string_view>

#include "SnakeCore/HighScores.hpp"

namespace SnakeCore {

/// The JSON of an entry. Each member is JSON too and can be replaced, even with invalid text.
struct EntryText {
    std::string id = R"("0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30")";
    std::string name = R"("Pip")";
    std::string score = "120";
    std::string pace = R"("Classic")";
    std::string date = "784598400.5";
    /// Appended after the five members.
    std::string more;

    [[nodiscard]] std::string text() const {
        return R"({"id":)" + id + R"(,"name":)" + name + R"(,"score":)" + score + R"(,"pace":)" +
               pace + R"(,"date":)" + date + more + "}";
    }
};

inline std::string tableOf(const EntryText& entry) {
    return "[" + entry.text() + "]";
}

/// The number of entries read from JSON.
inline std::size_t entriesIn(std::string_view data) {
    return HighScores(data).entries().size();
}

/// A UUID that ends in `number` in hexadecimal, for distinct ids in a known order.
inline UUID identity(unsigned number) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "00000000-0000-4000-8000-000000000000";
    for (std::size_t i = text.size(); number > 0; number /= 16) {
        text[--i] = digits[number % 16];
    }
    return UUID::parse(text).value();
}

}  // namespace SnakeCore
