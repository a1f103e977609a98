#include "Storage/PreferencesDocument.hpp"

#include <QCborStreamReader>
#include <QCborStreamWriter>

namespace Storage {

namespace {

constexpr std::size_t maximumKeys = 4096;
constexpr int maximumDepth = 512;

/// Skips one data item and returns its bytes, or std::nullopt if it is malformed or nested too
/// deeply.
std::optional<QByteArray> takeItem(QCborStreamReader& reader, const QByteArray& bytes) {
    const qint64 start = reader.currentOffset();
    while (reader.isTag()) {
        reader.next();
    }
    if (!reader.next(maximumDepth) || reader.lastError() != QCborError::NoError) {
        return std::nullopt;
    }
    return bytes.mid(start, reader.currentOffset() - start);
}

/// CBOR can encode one string in several ways; lookups need a single one.
QByteArray canonicalKey(const QByteArray& key) {
    const QCborValue value = QCborValue::fromCbor(key);
    return value.isString() ? value.toCbor() : key;
}

QByteArray encodedKey(const QString& key) {
    return QCborValue(key).toCbor();
}

}  // namespace

std::optional<PreferencesDocument> PreferencesDocument::read(const QByteArray& bytes) {
    QCborStreamReader reader(bytes);
    if (bytes.size() > maximumSize || !reader.isMap() || !reader.enterContainer()) {
        return std::nullopt;
    }
    PreferencesDocument document;
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        const auto key = takeItem(reader, bytes);
        const auto value = key ? takeItem(reader, bytes) : std::nullopt;
        if (!value || !document.entries_.emplace(canonicalKey(*key), *value).second ||
            document.entries_.size() > maximumKeys) {
            return std::nullopt;
        }
    }
    const bool complete = reader.lastError() == QCborError::NoError && reader.leaveContainer() &&
                          reader.currentOffset() == bytes.size();
    return complete ? std::optional(document) : std::nullopt;
}

QByteArray PreferencesDocument::encoded() const {
    QByteArray bytes;
    // QCborStreamWriter cannot append encoded items, so it writes only the head of the map.
    QCborStreamWriter(&bytes).startMap(entries_.size());
    for (const auto& [key, value] : entries_) {
        bytes.append(key).append(value);
    }
    return bytes;
}

bool PreferencesDocument::contains(const QString& key) const {
    return entries_.contains(encodedKey(key));
}

QCborValue PreferencesDocument::value(const QString& key) const {
    const auto entry = entries_.find(encodedKey(key));
    if (entry == entries_.end()) {
        return {};
    }
    // No setting is a container, and decoding a malicious one could take a gigabyte.
    const QCborStreamReader reader(entry->second);
    const bool scalar = !reader.isContainer() && !reader.isTag();
    return scalar ? QCborValue::fromCbor(entry->second) : QCborValue();
}

void PreferencesDocument::insert(const QString& key, const QCborValue& value) {
    entries_.insert_or_assign(encodedKey(key), value.toCbor());
}

void PreferencesDocument::insert(const PreferencesDocument& newer) {
    for (const auto& [key, value] : newer.entries_) {
        entries_.insert_or_assign(key, value);
    }
}

}  // namespace Storage
