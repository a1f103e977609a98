#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>

#include "Fernwick/Session/SavedScores.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/NameText.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Support/Screen.hpp"

namespace {

constexpr int listWidth = 376;
constexpr int listHeight = 150;

class ScoreRowsTest : public ::testing::Test {
protected:
    ScoreRowsTest() { rows.resize(listWidth, listHeight); }

    /// The entries in ranking order.
    static std::vector<SnakeCore::HighScore> entries(const SavedScores& saved) {
        return scoreTable(saved).leaders("Classic");
    }

    static std::vector<SnakeCore::HighScore> entries(std::int64_t count) {
        SavedScores saved;
        for (std::int64_t index = 0; index < count; ++index) {
            saved.emplace_back("Ada", 100 - index);
        }
        return entries(saved);
    }

    [[nodiscard]] QImage picture() { return rows.grab().toImage(); }

    ScoreRows rows;
};

}  // namespace

TEST_F(ScoreRowsTest, showsOnlyTheInvitationWithoutEntries) {
    rows.setEntries({});

    EXPECT_EQ(Screen::texts(rows), QStringList("A fresh start. Be the first on the board."));
    EXPECT_FALSE(rows.findChild<QScrollArea*>()->isVisibleTo(&rows));
}

TEST_F(ScoreRowsTest, padsTheInvitationBy28AndCentresIt) {
    rows.setEntries({});
    rows.show();
    QCoreApplication::processEvents();

    const auto& text = *rows.findChild<Garden::TrackedLabel*>();
    const QRect shown(text.mapTo(&rows, QPoint()), text.size());
    EXPECT_EQ(rows.minimumSizeHint().height(), text.sizeHint().height() + 2 * 28);
    EXPECT_NEAR(shown.center().y(), rows.rect().center().y(), 1);
    EXPECT_NEAR(shown.center().x(), rows.rect().center().x(), 1);
}

TEST_F(ScoreRowsTest, showsNoInvitationWithEntries) {
    rows.setEntries(entries(1));

    EXPECT_FALSE(Screen::shows(rows, "A fresh start. Be the first on the board."));
}

TEST_F(ScoreRowsTest, showsTwoDigitRanksFromOne) {
    rows.setEntries(entries(10));

    EXPECT_TRUE(Screen::shows(rows, "01 Ada 100"));
    EXPECT_TRUE(Screen::shows(rows, "09 Ada 92"));
    EXPECT_TRUE(Screen::shows(rows, "10 Ada 91"));
    EXPECT_EQ(rows.findChildren<ScoreRow*>().size(), 10);
}

TEST_F(ScoreRowsTest, showsAScoreOfZero) {
    rows.setEntries(entries({{"Ada", 0}}));

    EXPECT_TRUE(Screen::shows(rows, "01 Ada 0"));
}

TEST_F(ScoreRowsTest, showsALargeScoreWithoutSeparators) {
    rows.setEntries(entries({{"Ada", 1234567}}));

    EXPECT_TRUE(Screen::shows(rows, "01 Ada 1234567"));
}

TEST_F(ScoreRowsTest, removesRowsForFewerEntries) {
    rows.setEntries(entries(10));
    rows.setEntries(entries(2));

    EXPECT_EQ(rows.findChildren<ScoreRow*>().size(), 2);
}

TEST_F(ScoreRowsTest, highlightsOnlyTheGivenEntry) {
    const std::vector<SnakeCore::HighScore> three = entries(3);
    rows.setEntries(three);
    const QImage plain = picture();

    rows.setEntries(three, three[1].id);
    const QImage highlighted = picture();

    const QList<ScoreRow*> shown = rows.findChildren<ScoreRow*>();
    for (qsizetype index = 0; index < shown.size(); ++index) {
        const QPoint point = shown[index]->mapTo(&rows, QPoint(listWidth / 2, 4));
        const bool differs = plain.pixel(point) != highlighted.pixel(point);
        EXPECT_EQ(differs, index == 1) << index;
    }
}

TEST_F(ScoreRowsTest, highlightsNothingForAnUnknownId) {
    const std::vector<SnakeCore::HighScore> three = entries(3);
    rows.setEntries(three);
    const QImage plain = picture();

    rows.setEntries(three, SnakeCore::UUID::random());

    EXPECT_EQ(picture(), plain);
}

TEST_F(ScoreRowsTest, scrollsToTheHighlightedEntry) {
    const std::vector<SnakeCore::HighScore> ten = entries(10);

    rows.setEntries(ten, ten[9].id);
    rows.show();
    QCoreApplication::processEvents();

    const ScoreRow* last = rows.findChildren<ScoreRow*>().constLast();
    EXPECT_TRUE(rows.rect().contains(last->mapTo(&rows, last->rect().center())));
}

TEST_F(ScoreRowsTest, elidesALongNameAndKeepsTheScoreWhole) {
    rows.setEntries(entries({{"Ada", 6120}}));
    const QImage withShortName = picture();

    rows.setEntries(entries({{std::string(24, 'W'), 6120}}));
    const QImage withLongName = picture();

    const ScoreRow* row = rows.findChild<ScoreRow*>();
    const QRect score(row->mapTo(&rows, QPoint(row->width() - 14 - 40, 0)),
                      QSize(40, row->height()));
    EXPECT_EQ(withShortName.copy(score), withLongName.copy(score));
    EXPECT_EQ(row->height(), row->sizeHint().height());
}

TEST_F(ScoreRowsTest, cutsAnEndlessNameBeforeItIsLaidOut) {
    // Joined emoji are one character, so a valid table may have such a name.
    const QString endless = QStringLiteral("🌿\u200D").repeated(250'000);
    rows.setEntries(entries({{endless.toStdString(), 10}}));

    EXPECT_TRUE(
        Screen::shows(rows, QStringLiteral("01 %1… 10").arg(endless.left(longestNameText))));
}

TEST_F(ScoreRowsTest, cutsNoNameWithinASurrogatePair) {
    for (const QString& start :
         {QStringLiteral("x"), QStringLiteral("xy"), QStringLiteral("xyz")}) {
        const QString endless = start + QStringLiteral("🌿\u200D").repeated(1000);
        rows.setEntries(entries({{endless.toStdString(), 10}}));

        const QString shown = Screen::nameOf(rows.findChild<ScoreRow*>());
        EXPECT_TRUE(shown.isValidUtf16());
        EXPECT_LE(shown.size(), longestNameText + 7);
        EXPECT_GE(shown.size(), longestNameText + 6);
    }
}

TEST_F(ScoreRowsTest, keepsALongNameThatTheFieldAccepts) {
    const QString name = QStringLiteral("🌿\u200D").repeated(longestNameText / 3);
    ASSERT_EQ(name.size(), longestNameText);
    rows.setEntries(entries({{name.toStdString(), 10}}));

    EXPECT_TRUE(Screen::shows(rows, QStringLiteral("01 %1 10").arg(name)));
}
