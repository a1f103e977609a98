#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>
#include <utility>

#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "SnakeCore/HighScores.hpp"
#include "Support/Screen.hpp"

namespace {

constexpr int boardWidth = 376;
constexpr int boardHeight = 150;

class Rows : public ::testing::Test {
protected:
    Rows() { rows.resize(boardWidth, boardHeight); }

    /// Entries as the table ranks them.
    static std::vector<SnakeCore::HighScore> entries(
        const std::vector<std::pair<std::string, std::int64_t>>& saved) {
        SnakeCore::HighScores table;
        for (const auto& [name, score] : saved) {
            table.record(SnakeCore::UUID::random(), name, score, "Classic", SnakeCore::Date{0});
        }
        return table.leaders("Classic");
    }

    static std::vector<SnakeCore::HighScore> entries(std::int64_t count) {
        std::vector<std::pair<std::string, std::int64_t>> saved;
        for (std::int64_t index = 0; index < count; ++index) {
            saved.emplace_back("Ada", 100 - index);
        }
        return entries(saved);
    }

    [[nodiscard]] QImage picture() { return rows.grab().toImage(); }

    ScoreRows rows;
};

}  // namespace

TEST_F(Rows, withoutEntriesShowTheInvitationOnly) {
    rows.setEntries({});

    EXPECT_EQ(Screen::texts(rows), QStringList("A fresh start. Be the first on the board."));
    EXPECT_FALSE(rows.findChild<QScrollArea*>()->isVisibleTo(&rows));
}

TEST_F(Rows, withEntriesShowNoInvitation) {
    rows.setEntries(entries(1));

    EXPECT_FALSE(Screen::shows(rows, "A fresh start. Be the first on the board."));
}

TEST_F(Rows, areRankedWithTwoDigitsFromOne) {
    rows.setEntries(entries(10));

    EXPECT_TRUE(Screen::shows(rows, "01 Ada 100"));
    EXPECT_TRUE(Screen::shows(rows, "09 Ada 92"));
    EXPECT_TRUE(Screen::shows(rows, "10 Ada 91"));
    EXPECT_EQ(rows.findChildren<ScoreRow*>().size(), 10);
}

TEST_F(Rows, showAScoreOfZero) {
    rows.setEntries(entries({{"Ada", 0}}));

    EXPECT_TRUE(Screen::shows(rows, "01 Ada 0"));
}

TEST_F(Rows, showNoGroupingInALargeScore) {
    rows.setEntries(entries({{"Ada", 1234567}}));

    EXPECT_TRUE(Screen::shows(rows, "01 Ada 1234567"));
}

TEST_F(Rows, shrinkWithTheEntries) {
    rows.setEntries(entries(10));
    rows.setEntries(entries(2));

    EXPECT_EQ(rows.findChildren<ScoreRow*>().size(), 2);
}

TEST_F(Rows, pickOutTheHighlightedEntryOnly) {
    const std::vector<SnakeCore::HighScore> three = entries(3);
    rows.setEntries(three);
    const QImage plain = picture();

    rows.setEntries(three, three[1].id);
    const QImage highlighted = picture();

    const QList<ScoreRow*> shown = rows.findChildren<ScoreRow*>();
    for (qsizetype index = 0; index < shown.size(); ++index) {
        const QPoint place = shown[index]->mapTo(&rows, QPoint(boardWidth / 2, 4));
        const bool differs = plain.pixel(place) != highlighted.pixel(place);
        EXPECT_EQ(differs, index == 1) << index;
    }
}

TEST_F(Rows, highlightNothingForAnIdThatIsInNone) {
    const std::vector<SnakeCore::HighScore> three = entries(3);
    rows.setEntries(three);
    const QImage plain = picture();

    rows.setEntries(three, SnakeCore::UUID::random());

    EXPECT_EQ(picture(), plain);
}

TEST_F(Rows, bringTheHighlightedEntryIntoSight) {
    const std::vector<SnakeCore::HighScore> ten = entries(10);

    rows.setEntries(ten, ten[9].id);
    rows.show();
    QCoreApplication::processEvents();

    const ScoreRow* last = rows.findChildren<ScoreRow*>().constLast();
    EXPECT_TRUE(rows.rect().contains(last->mapTo(&rows, last->rect().center())));
}

TEST_F(Rows, cutALongNameAndKeepTheScoreWhole) {
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
