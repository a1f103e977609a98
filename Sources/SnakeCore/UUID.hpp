#pragma once

#include <array>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace SnakeCore {

/// A universally unique identifier (RFC 4122).
class UUID {
public:
    /// A new random UUID (version 4).
    [[nodiscard]] static UUID random();

    /// Parses exactly the 36-character form in upper or lower case, such as
    /// "0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30". Returns std::nullopt for any other text.
    [[nodiscard]] static std::optional<UUID> parse(std::string_view text);

    /// The 36-character form in upper case.
    [[nodiscard]] std::string string() const;

    /// Ordered by bytes, which is the order of `string()`.
    friend bool operator==(const UUID&, const UUID&) = default;
    friend auto operator<=>(const UUID&, const UUID&) = default;

private:
    UUID() = default;

    std::array<unsigned char, 16> bytes_{};
};

}  // namespace SnakeCore
