#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>
#include <cstdint>
#include <optional>

/// The player's stored settings: a typed key-value store that outlives the process.
/// Types are kept apart: text under a key is never read as a Bool, nor a Bool as a number.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// The whole number under `key`; 0 when absent or not a number. A fraction is cut off.
    [[nodiscard]] std::int64_t integer(const QString& key) const;
    [[nodiscard]] std::optional<bool> boolean(const QString& key) const;
    [[nodiscard]] std::optional<QString> text(const QString& key) const;
    [[nodiscard]] std::optional<QByteArray> bytes(const QString& key) const;

    /// Stores `value` under `key`, leaving every other key as it is. True when the value will be
    /// found again at the next start; false when it could not be stored, in which case what was
    /// stored before still stands and reading gives the new value until the process ends.
    virtual bool store(const QString& key, const QCborValue& value) = 0;

protected:
    /// The value under `key`; an undefined value when absent.
    [[nodiscard]] virtual QCborValue value(const QString& key) const = 0;
};
