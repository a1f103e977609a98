#include "SnakeCore/Detail/TableWriter.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string_view>

#include "SnakeCore/Detail/Utf8.hpp"

namespace SnakeCore {
namespace {

template <typename... Format>
void appendDigits(std::string& json, auto number, Format... format) {
    std::array<char, 32> digits;
    const auto [end, error] = std::to_chars(digits.begin(), digits.end(), number, format...);
    json.append(digits.begin(), end);
}

/// The shortest digits that read back as the same number.
void appendNumber(std::string& json, double number) {
    if (!std::isfinite(number)) {
        throw std::invalid_argument("a date that is not finite has no stored form");
    }
    if (number == 0 && std::signbit(number)) {
        // Without the fraction it would be read as an integer, and those have no negative zero.
        json += "-0.0";
        return;
    }
    // Between these, dates are written as people write them; the shortest form alone would make
    // 7.84e+08 of 784000000.
    constexpr double smallestPlain = 1e-4;
    constexpr double largestPlain = 1e16;
    const double size = std::abs(number);
    const bool plain = size == 0 || (size >= smallestPlain && size < largestPlain);
    appendDigits(json, number, plain ? std::chars_format::fixed : std::chars_format::scientific);
}

void appendControl(std::string& json, char control) {
    switch (control) {
        case '\b':
            json += "\\b";
            return;
        case '\f':
            json += "\\f";
            return;
        case '\n':
            json += "\\n";
            return;
        case '\r':
            json += "\\r";
            return;
        case '\t':
            json += "\\t";
            return;
        default:
            json += control < 0x10 ? "\\u000" : "\\u001";
            json += "0123456789abcdef"[control & 0xF];
    }
}

void appendText(std::string& json, std::string_view text) {
    if (!isUtf8(text)) {
        throw std::invalid_argument("a text that is not UTF-8 has no stored form");
    }
    json += '"';
    for (const char character : text) {
        if (static_cast<unsigned char>(character) < 0x20) {
            appendControl(json, character);
            continue;
        }
        if (character == '"' || character == '\\' || character == '/') {
            json += '\\';
        }
        json += character;
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

}  // namespace SnakeCore
