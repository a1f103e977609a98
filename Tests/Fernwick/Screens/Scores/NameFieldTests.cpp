#include <gtest/gtest.h>

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/NameText.hpp"

namespace {

const QString family = QStringLiteral("👨‍👩‍👧‍👦");
const QString separateEmoji = QStringLiteral("🌿");
/// Any number of these is one character.
const QString joinedEmoji = QStringLiteral("🌿\u200D");
constexpr int hostileCount = 100'000;

/// What a paste does with the text of the clipboard.
void paste(NameField& field, const QString& text) {
    field.insert(text);
}

void drop(NameField& field, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent entering(field.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&field, &entering);
    QDropEvent event(field.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&field, &event);
}

void commit(NameField& field, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&field, &event);
}

struct Entry {
    const char* name;
    void (*enter)(NameField& field, const QString& text);
};

std::ostream& operator<<(std::ostream& out, const Entry& entry) {
    return out << entry.name;
}

class LongTexts : public testing::TestWithParam<Entry> {
protected:
    void enter(const QString& text) { GetParam().enter(field, text); }

    NameField field;
};

class LongName : public testing::Test {
protected:
    NameField field;
};

INSTANTIATE_TEST_SUITE_P(Entered, LongTexts,
                         testing::Values(Entry{"Pasted", paste}, Entry{"Dropped", drop},
                                         Entry{"ByAnInputMethod", commit},
                                         Entry{"ByTheProgram",
                                               [](NameField& field, const QString& text) {
                                                   field.setText(text);
                                               }}),
                         [](const auto& entry) { return entry.param.name; });

}  // namespace

TEST_P(LongTexts, mayHave24CharactersOfSeveralCodePoints) {
    enter(family.repeated(24));

    EXPECT_EQ(field.text(), family.repeated(24));
}

TEST_P(LongTexts, areCutAfter24Characters) {
    enter(separateEmoji.repeated(hostileCount));

    EXPECT_EQ(field.text(), separateEmoji.repeated(24));
}

TEST_P(LongTexts, areCutWithinACharacterThatNeverEnds) {
    enter(joinedEmoji.repeated(hostileCount));

    EXPECT_EQ(field.text(), joinedEmoji.repeated(hostileCount).left(longestNameText));
}

TEST_P(LongTexts, areNotCutWithinASurrogatePair) {
    // One of these puts the limit within a pair.
    for (const QString& start :
         {QStringLiteral("x"), QStringLiteral("xy"), QStringLiteral("xyz")}) {
        field.clear();
        enter(start + joinedEmoji.repeated(hostileCount));

        EXPECT_LE(field.text().size(), longestNameText);
        EXPECT_GE(field.text().size(), longestNameText - 1);
        EXPECT_TRUE(field.text().isValidUtf16());
    }
}

TEST_F(LongName, isCutWhenPastedInFrontOfAnother) {
    for (int length = 1; length <= 3; ++length) {
        const QString name = QString(length, u'x');
        field.setText(name);
        field.setCursorPosition(0);

        field.insert(joinedEmoji.repeated(hostileCount));

        EXPECT_EQ(field.text(), joinedEmoji.repeated(hostileCount).left(longestNameText));
        EXPECT_TRUE(field.text().isValidUtf16());
    }
}

TEST_F(LongName, ofAnInputMethodIsBoundedEvenBeforeItIsCut) {
    EXPECT_LE(field.maxLength(), 2 * longestNameText);
}

TEST_F(LongName, keepsTheCursorAfterATypedCharacter) {
    field.setText(QString(24, u'x'));
    field.setCursorPosition(3);

    QTest::keyClick(&field, Qt::Key_Y);

    EXPECT_EQ(field.text(), QStringLiteral("xxxy") + QString(20, u'x'));
    EXPECT_EQ(field.cursorPosition(), 4);
}
