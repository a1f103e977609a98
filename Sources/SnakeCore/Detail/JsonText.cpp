#include "SnakeCore/Detail/JsonText.hpp"

#include <locale.h>
#if __has_include(<xlocale.h>)
#include <xlocale.h>  // strtod_l() on macOS
#endif
#include <stdlib.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "SnakeCore/Detail/Utf8.hpp"

namespace SnakeCore::Detail {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

constexpr bool isWhiteSpace(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// Whether a string may contain each byte as it is.
constexpr std::array<bool, 256> isPlain = [] {
    std::array<bool, 256> plain{};
    std::fill(plain.begin() + 0x20, plain.end(), true);
    plain['"'] = plain['\\'] = false;
    return plain;
}();

constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

constexpr bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// The double nearest to a valid number, or nothing if that is infinite.
std::optional<double> toDouble(std::string_view number) {
    double value = 0;
    const char* const begin = number.data();
    if (std::from_chars(begin, begin + number.size(), value).ec == std::errc()) {
        return value;
    }
    // from_chars() does not tell a number that is too large from one that is too small. strtod()
    // does, but would take the decimal point of the process's locale.
    static const locale_t c = ::newlocale(LC_ALL_MASK, "C", nullptr);
    value = ::strtod_l(std::string(number).c_str(), nullptr, c);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<std::int64_t> toInteger(double value) {
    constexpr double limit = 0x1p63;
    return value >= -limit && value < limit && std::trunc(value) == value
               ? std::optional(static_cast<std::int64_t>(value))
               : std::nullopt;
}

}  // namespace

JsonText::JsonText(std::string_view json) : rest_(json) {
    if (rest_.starts_with(byteOrderMark)) {
        rest_.remove_prefix(byteOrderMark.size());
    }
}

void JsonText::skipWhiteSpace() {
    while (!rest_.empty() && isWhiteSpace(rest_[0])) {
        rest_.remove_prefix(1);
    }
}

bool JsonText::take(char character) {
    skipWhiteSpace();
    const bool isNext = rest_.starts_with(character);
    rest_.remove_prefix(isNext ? 1 : 0);
    return isNext;
}

bool JsonText::atEnd() {
    skipWhiteSpace();
    return rest_.empty();
}

bool JsonText::string(std::string& text) {
    if (!take('"')) {
        return false;
    }
    text.clear();
    unsigned char bitsUsed = 0;
    while (true) {
        std::size_t length = 0;
        for (; length < rest_.size(); ++length) {
            const auto byte = static_cast<unsigned char>(rest_[length]);
            if (!isPlain[byte]) {
                break;
            }
            bitsUsed |= byte;
        }
        text.append(rest_, 0, length);
        rest_.remove_prefix(length);
        if (rest_.starts_with('"')) {
            rest_.remove_prefix(1);
            return bitsUsed < 0x80 || isUtf8(text);
        }
        if (!escape(text)) {
            return false;
        }
    }
}

bool JsonText::escape(std::string& text) {
    constexpr std::string_view letters = "\"\\/bfnrt";
    if (rest_.size() < 2 || rest_[0] != '\\') {
        return false;
    }
    if (const std::size_t i = letters.find(rest_[1]); i != std::string_view::npos) {
        text += "\"\\/\b\f\n\r\t"[i];
        rest_.remove_prefix(2);
        return true;
    }
    std::optional<char32_t> codePoint = codeUnit();
    if (!codePoint || isLowSurrogate(*codePoint)) {
        return false;
    }
    if (*codePoint >= 0xD800 && *codePoint < 0xDC00) {
        const std::optional<char32_t> low = codeUnit();
        if (!low || !isLowSurrogate(*low)) {
            return false;
        }
        codePoint = 0x10000 + ((*codePoint - 0xD800) << 10) + (*low - 0xDC00);
    }
    appendUtf8(text, *codePoint);
    return true;
}

/// Reads "\u" and four hexadecimal digits.
std::optional<char32_t> JsonText::codeUnit() {
    constexpr std::size_t length = 6;
    std::uint16_t unit = 0;
    if (rest_.size() < length || !rest_.starts_with("\\u") ||
        std::from_chars(rest_.data() + 2, rest_.data() + length, unit, 16).ptr !=
            rest_.data() + length) {
        return std::nullopt;
    }
    rest_.remove_prefix(length);
    return unit;
}

bool JsonText::digits() {
    const auto end = std::ranges::find_if_not(rest_, isDigit);
    const bool any = end != rest_.begin();
    rest_ = {end, rest_.end()};
    return any;
}

std::optional<JsonText::Number> JsonText::number() {
    skipWhiteSpace();
    const std::string_view from = rest_;
    const auto takeEither = [this](char one, char other) {
        const bool isNext = rest_.starts_with(one) || rest_.starts_with(other);
        rest_.remove_prefix(isNext ? 1 : 0);
        return isNext;
    };
    static_cast<void>(takeEither('-', '-'));
    if (!takeEither('0', '0') && !digits()) {
        return std::nullopt;
    }
    const std::string_view::size_type integerLength = from.size() - rest_.size();
    if (takeEither('.', '.') && !digits()) {
        return std::nullopt;
    }
    if (takeEither('e', 'E')) {
        static_cast<void>(takeEither('+', '-'));
        if (!digits()) {
            return std::nullopt;
        }
    }
    const std::string_view all = from.substr(0, from.size() - rest_.size());
    std::int64_t integer = 0;
    const bool digitsOnly = all.size() == integerLength;
    if (digitsOnly &&
        std::from_chars(all.data(), all.data() + all.size(), integer).ec == std::errc()) {
        return Number{static_cast<double>(integer), integer};
    }
    const std::optional<double> value = toDouble(all);
    if (!value) {
        return std::nullopt;
    }
    // Digits alone arrive here only if they overflow 64 bits, which a double may round down to fit.
    return Number{*value, digitsOnly ? std::nullopt : toInteger(*value)};
}

bool JsonText::literal(std::string_view word) {
    const bool isNext = rest_.starts_with(word);
    rest_.remove_prefix(isNext ? word.size() : 0);
    return isNext;
}

bool JsonText::skip(int levels) {
    skipWhiteSpace();
    if (rest_.empty()) {
        return false;
    }
    std::string text;
    switch (rest_[0]) {
        case '[':
            return levels > 0 && array([&] { return skip(levels - 1); });
        case '{':
            return levels > 0 && object([&](std::string_view) { return skip(levels - 1); });
        case '"':
            return string(text);
        case 't':
            return literal("true");
        case 'f':
            return literal("false");
        case 'n':
            return literal("null");
        default:
            return number().has_value();
    }
}

}  // namespace SnakeCore::Detail
