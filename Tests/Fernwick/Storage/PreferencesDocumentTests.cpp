#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QCborArray>
#include <QCborMap>
#include <map>
#include <string>

#include "Storage/PreferencesDocument.hpp"

using namespace Qt::StringLiterals;
using Storage::PreferencesDocument;

namespace {

using Numbers = std::map<std::string, std::int64_t>;

QString keyOf(const std::string& name) {
    return QString::fromLatin1(QByteArray::fromStdString(name).toHex());
}

PreferencesDocument documentOf(const Numbers& numbers) {
    PreferencesDocument document;
    for (const auto& [name, number] : numbers) {
        document.insert(keyOf(name), static_cast<qint64>(number));
    }
    return document;
}

QByteArray mapOfSize(int size) {
    QCborMap map;
    for (int key = 0; key < size; ++key) {
        map[key] = key;
    }
    return QCborValue(map).toCbor();
}

/// One key, "a", with `count` nested arrays.
QByteArray nestedArrays(qsizetype count) {
    return QByteArray::fromHex("a16161") + QByteArray(count, '\x81') + QByteArray(1, '\0');
}

}  // namespace

RC_GTEST_PROP(PreferencesDocumentProperty, readsBackWhatItEncoded, (const Numbers& numbers)) {
    const PreferencesDocument document = documentOf(numbers);

    const auto read = PreferencesDocument::read(document.encoded());

    RC_ASSERT(read == document);
    for (const auto& [name, number] : numbers) {
        RC_ASSERT(read->value(keyOf(name)).toInteger() == number);
    }
}

RC_GTEST_PROP(PreferencesDocumentProperty, rejectsTruncatedBytesAndTrailingBytes,
              (const Numbers& numbers, std::uint16_t cut, std::uint8_t more)) {
    const QByteArray bytes = documentOf(numbers).encoded();

    RC_ASSERT(!PreferencesDocument::read(bytes.first(cut % bytes.size())));
    RC_ASSERT(!PreferencesDocument::read(bytes + static_cast<char>(more)));
}

RC_GTEST_PROP(PreferencesDocumentProperty, reencodesADamagedDocumentThatItAccepts,
              (const Numbers& numbers, std::uint16_t where, std::uint8_t damage)) {
    QByteArray bytes = documentOf(numbers).encoded();
    bytes[where % bytes.size()] = static_cast<char>(damage);

    const auto document = PreferencesDocument::read(bytes);

    RC_TAG(document ? "accepted" : "rejected");
    if (document) {
        RC_ASSERT(PreferencesDocument::read(document->encoded()) == document);
    }
}

TEST(PreferencesDocumentTest, accepts4096KeysAndNoMore) {
    EXPECT_TRUE(PreferencesDocument::read(mapOfSize(4096)).has_value());
    EXPECT_FALSE(PreferencesDocument::read(mapOfSize(4097)).has_value());
}

TEST(PreferencesDocumentTest, accepts512NestedArraysAndNoMore) {
    EXPECT_TRUE(PreferencesDocument::read(nestedArrays(512)).has_value());
    EXPECT_FALSE(PreferencesDocument::read(nestedArrays(513)).has_value());
}

TEST(PreferencesDocumentTest, keepsTheOriginalEncodingOfAValue) {
    const QByteArray unusual = QByteArray::fromHex(
        "a16161"
        "1b0000000000000007");
    const auto document = PreferencesDocument::read(unusual);
    ASSERT_TRUE(document.has_value());

    EXPECT_EQ(document->encoded(), unusual);
    EXPECT_EQ(document->value(u"a"_s), QCborValue(7));
}

TEST(PreferencesDocumentTest, insertReplacesOlderValues) {
    PreferencesDocument older = documentOf({{"kept", 1}, {"replaced", 2}});

    older.insert(documentOf({{"replaced", 3}, {"added", 4}}));

    EXPECT_EQ(older, documentOf({{"kept", 1}, {"replaced", 3}, {"added", 4}}));
}
