#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QCborArray>
#include <QCborMap>
#include <map>
#include <string>

#include "Storage/PreferencesDocument.hpp"

using namespace Qt::StringLiterals;

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

/// One key, "a", over so many lists in each other.
QByteArray listsInEachOther(qsizetype count) {
    return QByteArray::fromHex("a16161") + QByteArray(count, '\x81') + QByteArray(1, '\0');
}

}  // namespace

RC_GTEST_PROP(PreferencesDocument, readsBackWhatItEncoded, (const Numbers& numbers)) {
    const PreferencesDocument document = documentOf(numbers);

    const auto read = PreferencesDocument::read(document.encoded());

    RC_ASSERT(read == document);
    for (const auto& [name, number] : numbers) {
        RC_ASSERT(read->value(keyOf(name)).toInteger() == number);
    }
}

RC_GTEST_PROP(PreferencesDocument, isNoDocumentWithoutItsEndOrWithMoreBehind,
              (const Numbers& numbers, std::uint16_t cut, std::uint8_t more)) {
    const QByteArray bytes = documentOf(numbers).encoded();

    RC_ASSERT(!PreferencesDocument::read(bytes.first(cut % bytes.size())));
    RC_ASSERT(!PreferencesDocument::read(bytes + static_cast<char>(more)));
}

RC_GTEST_PROP(PreferencesDocument, handsOnADamagedDocumentIfItAcceptsIt,
              (const Numbers& numbers, std::uint16_t where, std::uint8_t damage)) {
    QByteArray bytes = documentOf(numbers).encoded();
    bytes[where % bytes.size()] = static_cast<char>(damage);

    const auto document = PreferencesDocument::read(bytes);

    RC_TAG(document ? "accepted" : "refused");
    if (document) {
        RC_ASSERT(PreferencesDocument::read(document->encoded()) == document);
    }
}

TEST(PreferencesDocumentTest, takesFourThousandAndNinetySixKeysAndNoMore) {
    EXPECT_TRUE(PreferencesDocument::read(mapOfSize(4096)).has_value());
    EXPECT_FALSE(PreferencesDocument::read(mapOfSize(4097)).has_value());
}

TEST(PreferencesDocumentTest, takesFiveHundredAndTwelveListsInEachOtherAndNoMore) {
    EXPECT_TRUE(PreferencesDocument::read(listsInEachOther(512)).has_value());
    EXPECT_FALSE(PreferencesDocument::read(listsInEachOther(513)).has_value());
}

TEST(PreferencesDocumentTest, keepsTheBytesOfAValueExactly) {
    const QByteArray unusual = QByteArray::fromHex(
        "a16161"
        "1b0000000000000007");
    const auto document = PreferencesDocument::read(unusual);
    ASSERT_TRUE(document.has_value());

    EXPECT_EQ(document->encoded(), unusual);
    EXPECT_EQ(document->value(u"a"_s), QCborValue(7));
}

TEST(PreferencesDocumentTest, laysNewerValuesOverOlder) {
    PreferencesDocument older = documentOf({{"kept", 1}, {"replaced", 2}});

    older.insert(documentOf({{"replaced", 3}, {"added", 4}}));

    EXPECT_EQ(older, documentOf({{"kept", 1}, {"replaced", 3}, {"added", 4}}));
}
