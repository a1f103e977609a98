#pragma once

#include <QFont>
#include <QSize>

namespace Garden {

/// How tightly contents are laid out. The default is their full size.
struct Density {
    /// Factor of spacing and padding, in addition to `scale`.
    double air = 1;
    /// Factor of all fonts and lengths.
    double scale = 1;

    /// Whether contents of at least their full size have all their air.
    [[nodiscard]] bool isFull() const { return air == 1 && scale >= 1; }

    friend bool operator==(const Density&, const Density&) = default;
};

/// How much room contents need, in points; in the language whose texts need the most.
struct ContentSize {
    double width;
    /// The height at full size.
    double full;
    /// The part of it that is spacing and padding.
    double air;
    /// With the least air, and with a list of scores as short as it can be.
    double least;
};

/// The scale that contents should have in the width `available`: `textScale`, or less where that
/// would be too wide, but not less than 1.
[[nodiscard]] double scaleForWidth(double available, const ContentSize& contents, double textScale);

/// The density at which contents fit into `available`, at best enlarged by `textScale`. First the
/// air goes, then it is up to the layout to shorten a list, then everything shrinks by one factor.
[[nodiscard]] Density densityFor(const QSize& available, const ContentSize& contents,
                                 double textScale);

/// The part of the air that stays.
inline constexpr double leastAir = 0.6;

/// `length` times `factor`, rounded.
[[nodiscard]] inline int scaled(int length, double factor) {
    return qRound(length * factor);
}

/// `font` at `scale`, but not below the smallest legible size.
[[nodiscard]] QFont scaled(const QFont& font, double scale);

}  // namespace Garden
