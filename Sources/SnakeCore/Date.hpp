#pragma once

#include <compare>

namespace SnakeCore {

/// A point in time.
struct Date {
    /// Since 2001-01-01 00:00:00 UTC; may be negative and carry a fraction.
    double seconds = 0;

    /// By the system's clock.
    [[nodiscard]] static Date now();

    friend constexpr bool operator==(const Date&, const Date&) = default;
    friend constexpr auto operator<=>(const Date&, const Date&) = default;
};

}  // namespace SnakeCore
