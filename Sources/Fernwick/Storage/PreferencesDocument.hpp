#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>
#include <map>
#include <optional>

namespace Storage {

/// The settings as stored: one CBOR map. Each value is kept in its original encoding, so that what
/// other versions of the program stored is written back unchanged.
class PreferencesDocument {
public:
    /// The largest file that is read or written, in bytes: about 400,000 scores.
    static constexpr qsizetype maximumSize = 64 * 1024 * 1024;

    /// Returns std::nullopt unless `bytes` are exactly one map with unique keys, within limits
    /// (`maximumSize`, 4096 keys, 512 nested containers).
    [[nodiscard]] static std::optional<PreferencesDocument> read(const QByteArray& bytes);

    /// Deterministic: equal documents give equal bytes. Does not check the limits of `read`.
    [[nodiscard]] QByteArray encoded() const;

    /// Whether there is a value under `key`, of whatever type.
    [[nodiscard]] bool contains(const QString& key) const;
    /// The value under `key`; undefined when absent, and for an array, map or tagged value.
    [[nodiscard]] QCborValue value(const QString& key) const;

    void insert(const QString& key, const QCborValue& value);
    /// Inserts all entries of `newer`, replacing those with the same key.
    void insert(const PreferencesDocument& newer);

    friend bool operator==(const PreferencesDocument&, const PreferencesDocument&) = default;

private:
    /// Encoded keys and values, sorted by the bytes of the keys.
    std::map<QByteArray, QByteArray> entries_;
};

}  // namespace Storage
