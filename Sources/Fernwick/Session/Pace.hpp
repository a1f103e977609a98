#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <chrono>
#include <optional>
#include <string_view>

/// The speed of a run. Every launch begins on `classic`.
enum class Pace { gentle, classic, swift };

/// In the order in which they are offered.
inline constexpr std::array allPaces{Pace::gentle, Pace::classic, Pace::swift};

/// The capitalised word that names a pace in the stored scores and settings ("Gentle").
[[nodiscard]] std::string_view rawValue(Pace pace);

/// The pace with exactly this raw value (case-sensitive), if any.
[[nodiscard]] std::optional<Pace> paceFromRawValue(std::string_view text);

/// The time between two steps of the snake.
[[nodiscard]] std::chrono::milliseconds tickInterval(Pace pace);

/// The settings key of the personal best of a pace ("best-Gentle").
[[nodiscard]] QString bestKey(Pace pace);

/// The translated name of a pace.
[[nodiscard]] QString displayName(Pace pace);

/// The display names of all paces, in their order.
[[nodiscard]] QStringList paceNames();
