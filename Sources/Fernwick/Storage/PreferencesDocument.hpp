#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QString>
#include <map>
#include <optional>

/// The settings as they lie in the file: one CBOR map. Each value is kept as the bytes it came
/// in, so that what other programs or later versions stored is handed on exactly as it was.
class PreferencesDocument {
public:
    /// The largest file that is read or written, in bytes: some 400,000 results.
    static constexpr qsizetype maximumSize = 64 * 1024 * 1024;

    /// Nothing unless `bytes` are exactly one map with each key once, within sensible bounds
    /// (`maximumSize`, 4096 keys, 512 containers deep).
    [[nodiscard]] static std::optional<PreferencesDocument> read(const QByteArray& bytes);

    /// The same settings always give the same bytes. What `read` would refuse can be encoded.
    [[nodiscard]] QByteArray encoded() const;

    /// The single value under `key`; an undefined one when absent, and for a list or map.
    [[nodiscard]] QCborValue value(const QString& key) const;

    void insert(const QString& key, const QCborValue& value);
    /// Lays the values of `newer` over these.
    void insert(const PreferencesDocument& newer);

    friend bool operator==(const PreferencesDocument&, const PreferencesDocument&) = default;

private:
    /// Encoded key to encoded value, in the order of the keys' bytes.
    std::map<QByteArray, QByteArray> entries_;
};
