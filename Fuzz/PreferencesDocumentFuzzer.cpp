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
using Storage::PreferencesDocument;

namespace {

/// The bytes as parsed by QCborValue; std::nullopt if they are not exactly one map. QCborValue
/// recurses, so pass only bytes that PreferencesDocument accepted, whose nesting is limited.
std::optional<QCborMap> qtMap(const QByteArray& bytes) {
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    const bool whole = error.error == QCborError::NoError && error.offset == bytes.size();
    return whole && value.isMap() ? std::optional(value.toMap()) : std::nullopt;
}

/// Every simple value under a text key equals the one that Qt parsed.
void checkValues(const PreferencesDocument& document, const QCborMap& map) {
    for (const auto& [key, value] : map) {
        if (!key.isString()) {
            continue;
        }
        const QCborValue found = document.value(key.toString());
        const bool plain = value.isInteger() || value.isBool() || value.isString() ||
                           value.isByteArray() || value.isNull();
        require(!plain || found == value, "the value equals Qt's");
        require(!found.isContainer(), "no setting is an array or a map");
    }
}

/// Inserting a setting makes it readable and keeps all others.
void checkInsertion(const PreferencesDocument& document) {
    const QString key = u"sound"_s;
    PreferencesDocument changed = document;
    changed.insert(key, false);
    require(changed.value(key) == QCborValue(false), "an inserted value is found");
    PreferencesDocument other;
    other.insert(key, false);
    PreferencesDocument merged = document;
    merged.insert(other);
    require(merged == changed, "inserting a value or a document gives the same result");
    const auto again = PreferencesDocument::read(changed.encoded());
    require(!again || again == changed, "a document equals itself after being written and read");
}

}  // namespace

/// A document that was read equals itself after being written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto document = PreferencesDocument::read(bytes);
    if (!document) {
        return 0;
    }
    const QByteArray encoded = document->encoded();
    require(PreferencesDocument::read(encoded) == document,
            "an accepted document equals itself after being written and read");
    const auto map = qtMap(bytes);
    require(map.has_value(), "Qt accepts what PreferencesDocument accepts");
    checkValues(*document, *map);
    checkInsertion(*document);
    return 0;
}
