#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>
#include <cstdint>
#include <optional>

/// The stored settings: a persistent, typed key-value store. A value is read only as the type it
/// was stored with: text is never read as a Bool, nor a Bool as a number.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// The whole number under `key`; 0 when absent or not a number. A fraction is cut off.
    [[nodiscard]] std::int64_t integer(const QString& key) const;
    [[nodiscard]] std::optional<bool> boolean(const QString& key) const;
    [[nodiscard]] std::optional<QString> text(const QString& key) const;
    [[nodiscard]] std::optional<QByteArray> bytes(const QString& key) const;

    /// Whether anything is stored under `key`, of whatever type.
    [[nodiscard]] virtual bool contains(const QString& key) const = 0;

    /// Stores `value` under `key` and leaves every other key alone. Returns at once: this process
    /// reads the new value from now on, and it becomes durable as soon as the disk allows.
    virtual void store(const QString& key, const QCborValue& value) = 0;

    /// Makes the next `store` keep a copy of all that is stored now. For a value that cannot be
    /// understood and is about to be replaced.
    virtual void keepCopy() = 0;

protected:
    /// The value under `key`; an undefined value when absent.
    [[nodiscard]] virtual QCborValue value(const QString& key) const = 0;
};
