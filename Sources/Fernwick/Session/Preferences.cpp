#include "Session/Preferences.hpp"

#include <cmath>

std::int64_t Preferences::integer(const QString& key) const {
    const QCborValue stored = value(key);
    if (stored.isInteger()) {
        return stored.toInteger();
    }
    // 2^63 is the first double past the range; NaN fails both comparisons.
    constexpr double limit = 9223372036854775808.0;
    if (stored.isDouble() && stored.toDouble() >= -limit && stored.toDouble() < limit) {
        return static_cast<std::int64_t>(std::trunc(stored.toDouble()));
    }
    return 0;
}

std::optional<bool> Preferences::boolean(const QString& key) const {
    const QCborValue stored = value(key);
    return stored.isBool() ? std::optional(stored.toBool()) : std::nullopt;
}

std::optional<QString> Preferences::text(const QString& key) const {
    const QCborValue stored = value(key);
    return stored.isString() ? std::optional(stored.toString()) : std::nullopt;
}

std::optional<QByteArray> Preferences::bytes(const QString& key) const {
    const QCborValue stored = value(key);
    return stored.isByteArray() ? std::optional(stored.toByteArray()) : std::nullopt;
}
