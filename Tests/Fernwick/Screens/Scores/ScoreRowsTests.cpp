#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "Fernwick/Session/SavedScores.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/NameText.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"
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

TEST_F(ScoreRowsTest, showsTheHighlightedEntryInTheMiddleBetweenTwoWholeRows) {
    const std::vector<SnakeCore::HighScore> ten = entries(10);
    rows.show();

    for (const std::size_t index : {2U, 4U, 7U}) {
        rows.setEntries(ten, ten[index].id);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();

        const QList<ScoreRow*> shown = rows.findChildren<ScoreRow*>();
        const auto place = [&](std::size_t row) {
            const ScoreRow* widget = shown[static_cast<qsizetype>(row)];
            return QRect(widget->mapTo(&rows, QPoint()), widget->size());
        };
        EXPECT_NEAR(QRectF(place(index)).center().y(), listHeight / 2.0, 1) << index;
        EXPECT_TRUE(rows.rect().contains(place(index - 1))) << index;
        EXPECT_TRUE(rows.rect().contains(place(index + 1))) << index;
    }
}

TEST_F(ScoreRowsTest, placesOtherEntriesAtOnce) {
    rows.show();
    for (const std::int64_t count : {1, 10, 2, 0, 10}) {
        SCOPED_TRACE(count);
        rows.setEntries(entries(count));
        const QImage first = picture();

        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();

        EXPECT_EQ(picture(), first);
    }
}

TEST_F(ScoreRowsTest, centresTheHighlightedEntryOnceTheListHasItsHeight) {
    const std::vector<SnakeCore::HighScore> ten = entries(10);
    rows.show();
    rows.setFixedHeight(listHeight / 3);
    rows.setEntries(ten, ten[7].id);
    QCoreApplication::processEvents();
    ASSERT_GT(rows.findChildren<ScoreRow*>()[7]->mapTo(&rows, QPoint()).y(), -1);

    rows.setFixedHeight(listHeight);
    QCoreApplication::processEvents();

    const ScoreRow* highlighted = rows.findChildren<ScoreRow*>()[7];
    const QPointF middle = QRectF(highlighted->rect()).center();
    EXPECT_NEAR(highlighted->mapTo(&rows, middle).y(), listHeight / 2.0, 1);
}

TEST_F(ScoreRowsTest, fadesOutTowardsEdgesBeyondWhichItContinues) {
    rows.setEntries(entries(10));
    rows.show();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QScrollBar& scrolling = *rows.findChild<QScrollArea*>()->verticalScrollBar();
    const int pitch = rows.findChild<ScoreRow*>()->height() + 4;
    const int plate = onBlack(Garden::withOpacity(Qt::white, 0.025)).red();
    const auto brightness = [this](int y) {
        return ::picture(rows).pixelColor(listWidth / 2, y).red();
    };
    constexpr int faded = 1;
    constexpr int fade = 10;
    constexpr int bottom = listHeight - 1;

    scrolling.setValue(0);
    EXPECT_EQ(brightness(0), plate);
    EXPECT_LE(brightness(bottom), faded);
    EXPECT_EQ(brightness(bottom - fade), plate);

    scrolling.setValue(pitch / 2);
    EXPECT_LE(brightness(0), faded);
    EXPECT_EQ(brightness(fade), plate);

    scrolling.setValue(2 * pitch);
    EXPECT_LE(brightness(0), faded);
    EXPECT_EQ(brightness(fade), plate);

    scrolling.setValue(scrolling.maximum());
    EXPECT_LE(brightness(0), faded);
    EXPECT_EQ(brightness(bottom), plate);

    rows.setEntries(entries(3));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(brightness(0), plate);
    EXPECT_EQ(brightness(3 * pitch - 4 - 1), plate);
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

TEST_F(ScoreRowsTest, elidesANameWithoutLettersAtItsEndInTheLayout) {
    rows.setEntries(entries({{std::string(24, '@'), 10}}));
    rows.setLayoutDirection(Qt::RightToLeft);
    const QImage seen = ::picture(rows, 1);
    const ScoreRow* row = rows.findChild<ScoreRow*>();
    const QRect area(row->mapTo(&rows, QPoint(0, 0)), row->size());
    // Between the score at the left and the rank at the right.
    const QRectF name = Look::inkOf(Garden::primaryText, seen, area.adjusted(50, 0, -50, 0));

    const QRectF lastLetters =
        Look::inkOf(Garden::primaryText, seen, QRectF(name.left(), area.top(), 8, area.height()));
    EXPECT_LT(lastLetters.height(), name.height() / 2) << "no ellipsis at the left end";
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
