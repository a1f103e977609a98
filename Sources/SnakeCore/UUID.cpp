#include "SnakeCore/UUID.hpp"

#include <uuid/uuid.h>

namespace SnakeCore {
namespace {

constexpr std::size_t textLength = UUID_STR_LEN - 1;

}  // namespace

UUID UUID::random() {
    UUID result;
    uuid_generate_random(result.bytes_.data());
    return result;
}

std::optional<UUID> UUID::parse(std::string_view text) {
    // The library reads up to a NUL: without the check of the length, whatever follows would pass.
    UUID result;
    if (text.size() != textLength ||
        uuid_parse(std::string(text).c_str(), result.bytes_.data()) != 0) {
        return std::nullopt;
    }
    return result;
}

std::string UUID::string() const {
    std::array<char, UUID_STR_LEN> text{};
    uuid_unparse_upper(bytes_.data(), text.data());
    return {text.data(), textLength};
}

}  // namespace SnakeCore
