#pragma once

#include <QFont>

namespace Garden {

/// How tightly contents are laid out. The default is their full size.
struct Density {
    /// Factor of spacing and padding, in addition to `scale`.
    double air = 1;
    /// Factor of all fonts and lengths.
    double scale = 1;

    friend bool operator==(const Density&, const Density&) = default;
};

/// How much room contents need, in points; in the language whose texts need the most.
struct ContentHeight {
    /// At full size.
    double full;
    /// The part of it that is spacing and padding.
    double air;
    /// With the least air, and with a list of scores as short as it can be.
    double least;
};

/// The density at which contents fit the height `available`. First the air goes, then it is up to
/// the layout to shorten a list, then everything shrinks by one factor.
[[nodiscard]] Density densityFor(double available, const ContentHeight& contents);

/// The part of the air that stays.
inline constexpr double leastAir = 0.6;

/// `length` times `factor`, rounded.
[[nodiscard]] inline int scaled(int length, double factor) {
    return qRound(length * factor);
}

/// `font` at `scale`, but not below the smallest legible size.
[[nodiscard]] QFont scaled(const QFont& font, double scale);

}  // namespace Garden
