#include "SnakeCore/Detail/TableWriter.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "SnakeCore/Detail/Utf8.hpp"

namespace SnakeCore::Detail {
namespace {

template <typename... Format>
void appendDigits(std::string& json, auto number, Format... format) {
    std::array<char, 32> digits;
    const auto [end, error] = std::to_chars(digits.begin(), digits.end(), number, format...);
    json.append(digits.begin(), end);
}

/// The shortest digits that parse to the same double.
void appendNumber(std::string& json, double number) {
    if (!std::isfinite(number)) {
        throw std::invalid_argument("JSON cannot hold a date that is not finite");
    }
    if (number == 0 && std::signbit(number)) {
        // "-0" would be read as an integer and lose its sign.
        json += "-0.0";
        return;
    }
    // Fixed notation in this range; to_chars() without a format would write 784000000 as 7.84e+08.
    constexpr double leastFixed = 1e-4;
    constexpr double fixedLimit = 1e16;
    const double size = std::abs(number);
    const bool fixed = size == 0 || (size >= leastFixed && size < fixedLimit);
    appendDigits(json, number, fixed ? std::chars_format::fixed : std::chars_format::scientific);
}

void appendEscaped(std::string& json, char character) {
    constexpr std::string_view withShortEscape = "\"\\/\b\f\n\r\t";
    if (const std::size_t i = withShortEscape.find(character); i != std::string_view::npos) {
        json += '\\';
        json += "\"\\/bfnrt"[i];
    } else {
        json += character < 0x10 ? "\\u000" : "\\u001";
        json += "0123456789abcdef"[character & 0xF];
    }
}

void appendText(std::string& json, std::string_view text) {
    if (!isUtf8(text)) {
        throw std::invalid_argument("JSON cannot hold a text that is not UTF-8");
    }
    constexpr auto isEscaped = [](char character) {
        return static_cast<unsigned char>(character) < 0x20 || character == '"' ||
               character == '\\' || character == '/';
    };
    json += '"';
    for (auto next = text.begin(); next != text.end();) {
        const auto escaped = std::find_if(next, text.end(), isEscaped);
        json.append(next, escaped);
        next = escaped;
        if (next != text.end()) {
            appendEscaped(json, *next++);
        }
    }
    json += '"';
}

void appendEntry(std::string& json, const HighScore& entry) {
    json += R"({"id":")";
    json += entry.id.string();
    json += R"(","name":)";
    appendText(json, entry.name);
    json += R"(,"score":)";
    appendDigits(json, entry.score);
    json += R"(,"pace":)";
    appendText(json, entry.pace);
    json += R"(,"date":)";
    appendNumber(json, entry.date.seconds);
    json += '}';
}

}  // namespace

std::string writeTable(std::span<const HighScore> entries) {
    std::string json = "[";
    for (const HighScore& entry : entries) {
        if (json.size() > 1) {
            json += ',';
        }
        appendEntry(json, entry);
    }
    json += ']';
    return json;
}

}  // namespace SnakeCore::Detail
