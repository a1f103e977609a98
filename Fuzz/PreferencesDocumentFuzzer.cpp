#include <QCborMap>
#include <QCborParserError>
#include <QCborValue>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "Require.hpp"
#include "Storage/PreferencesDocument.hpp"

using namespace Qt::StringLiterals;
using SnakeCore::require;

namespace {

/// The same bytes through the library's own tree of values; nothing when they are no single map.
/// Only for bytes that were accepted, which are not nested too deeply for it.
std::optional<QCborMap> libraryMap(const QByteArray& bytes) {
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    const bool whole = error.error == QCborError::NoError && error.offset == bytes.size();
    return whole && value.isMap() ? std::optional(value.toMap()) : std::nullopt;
}

/// Each plain value under a text key is the one that the library finds.
void checkValues(const PreferencesDocument& document, const QCborMap& map) {
    for (const auto& [key, value] : map) {
        if (!key.isString()) {
            continue;
        }
        const QCborValue found = document.value(key.toString());
        const bool plain = value.isInteger() || value.isBool() || value.isString() ||
                           value.isByteArray() || value.isNull();
        require(!plain || found == value, "the value is the library's");
        require(!found.isContainer(), "no setting is a list");
    }
}

/// A setting laid over the document is found again and leaves all others as they were.
void checkInsertion(const PreferencesDocument& document) {
    const QString key = u"sound"_s;
    PreferencesDocument changed = document;
    changed.insert(key, false);
    require(changed.value(key) == QCborValue(false), "what was stored is found");
    PreferencesDocument other;
    other.insert(key, false);
    PreferencesDocument laidOver = document;
    laidOver.insert(other);
    require(laidOver == changed, "one by one or all at once is the same");
    const auto again = PreferencesDocument::read(changed.encoded());
    require(!again || again == changed, "what was stored is the same at the next start");
}

}  // namespace

/// Whatever is accepted is handed on: encoded, it is accepted again and is equal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto document = PreferencesDocument::read(bytes);
    if (!document) {
        return 0;
    }
    const QByteArray encoded = document->encoded();
    require(PreferencesDocument::read(encoded) == document, "what is accepted stays the same");
    const auto map = libraryMap(bytes);
    require(map.has_value(), "only what the library can read is accepted");
    checkValues(*document, *map);
    checkInsertion(*document);
    return 0;
}
