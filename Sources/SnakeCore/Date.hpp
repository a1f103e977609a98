#pragma once

#include <chrono>
#include <compare>

namespace SnakeCore {

/// A point in time.
struct Date {
    /// Seconds since 2001-01-01 00:00:00 UTC; may be negative or fractional.
    double seconds = 0;

    /// The current time of the system clock.
    [[nodiscard]] static Date now() {
        using namespace std::chrono;
        constexpr sys_days epoch{year{2001} / January / 1};
        return {duration<double>(system_clock::now() - epoch).count()};
    }

    friend constexpr bool operator==(const Date&, const Date&) = default;
    friend constexpr auto operator<=>(const Date&, const Date&) = default;
};

}  // namespace SnakeCore
