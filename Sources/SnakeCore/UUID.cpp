#include "SnakeCore/UUID.hpp"

#include <uuid/uuid.h>

namespace SnakeCore {
namespace {

constexpr std::size_t textLength = UUID_STR_LEN - 1;
constexpr int notADigit = -1;

/// The value of each character as a hexadecimal digit. Comparing characters instead would branch on
/// random data, which took a fifth of the time to load a table.
constexpr std::array<signed char, 256> hexadecimalDigits = [] {
    std::array<signed char, 256> values{};
    values.fill(notADigit);
    for (signed char value = 0; value < 16; ++value) {
        values[static_cast<unsigned char>("0123456789ABCDEF"[value])] = value;
        values[static_cast<unsigned char>("0123456789abcdef"[value])] = value;
    }
    return values;
}();

constexpr int hexadecimalDigit(char character) {
    return hexadecimalDigits[static_cast<unsigned char>(character)];
}

/// Whether the text has a "-" before this byte.
constexpr bool followsHyphen(std::size_t byte) {
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

}  // namespace

UUID UUID::random() {
    UUID result;
    uuid_generate_random(result.bytes_.data());
    return result;
}

// Not uuid_parse(), which checks and converts in separate passes and made up a fifth of the time to
// load a table.
std::optional<UUID> UUID::parse(std::string_view text) {
    if (text.size() != textLength) {
        return std::nullopt;
    }
    UUID result;
    std::size_t next = 0;
    for (std::size_t byte = 0; byte < result.bytes_.size(); ++byte) {
        if (followsHyphen(byte) && text[next++] != '-') {
            return std::nullopt;
        }
        const int high = hexadecimalDigit(text[next++]);
        const int low = hexadecimalDigit(text[next++]);
        if (high == notADigit || low == notADigit) {
            return std::nullopt;
        }
        result.bytes_[byte] = static_cast<unsigned char>(high << 4 | low);
    }
    return result;
}

std::string UUID::string() const {
    std::array<char, UUID_STR_LEN> text{};
    uuid_unparse_upper(bytes_.data(), text.data());
    return {text.data(), textLength};
}

}  // namespace SnakeCore
