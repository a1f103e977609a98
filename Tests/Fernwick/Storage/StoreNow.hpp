#pragma once

#include <chrono>
#include <utility>

#include "Storage/PreferencesFile.hpp"

/// Stores a value and waits until it is durable. Returns false if it could not be written.
template <typename PreferencesFile>
[[nodiscard]] bool storeNow(PreferencesFile&& preferences, const QString& key,
                            const QCborValue& value) {
    constexpr std::chrono::minutes timeout{1};
    preferences.store(key, value);
    return std::forward<PreferencesFile>(preferences).flush(timeout);
}

/// A pause after a failed write that no test sees the end of.
inline constexpr std::chrono::hours noRetry{1};
