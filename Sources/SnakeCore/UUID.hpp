#pragma once

#include <array>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace SnakeCore {

/// A 128-bit identity.
class UUID {
public:
    /// A new random identity.
    [[nodiscard]] static UUID random();

    /// Reads exactly the 36-character form, in any case: five groups of 8-4-4-4-12 hexadecimal
    /// digits joined by "-". Nothing for any other text.
    [[nodiscard]] static std::optional<UUID> parse(std::string_view text);

    /// The 36-character form in upper case.
    [[nodiscard]] std::string string() const;

    /// The order of the identities is the order of their texts.
    friend bool operator==(const UUID&, const UUID&) = default;
    friend auto operator<=>(const UUID&, const UUID&) = default;

private:
    UUID() = default;

    std::array<unsigned char, 16> bytes_{};
};

}  // namespace SnakeCore
