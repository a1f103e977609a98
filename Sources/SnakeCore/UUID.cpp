#include "SnakeCore/UUID.hpp"

#include <uuid/uuid.h>

namespace SnakeCore {
namespace {

constexpr std::size_t textLength = UUID_STR_LEN - 1;
constexpr int notADigit = -1;

constexpr int hexadecimalDigit(char character) {
    if (character >= '0' && character <= '9') {
        return character - '0';
    }
    // Bit 5 distinguishes upper from lower case in ASCII.
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : notADigit;
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
