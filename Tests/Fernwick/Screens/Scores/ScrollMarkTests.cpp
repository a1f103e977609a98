#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QTest>

#include "Garden/Look/Palette.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "SnakeCore/HighScores.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

constexpr int areaWidth = 376;
constexpr int areaHeight = 150;
constexpr int markLeft = areaWidth - 10 + 3;
constexpr int markWidth = 4;

/// A board of rows on black, in a window that can have the focus.
class ScrollMark : public ::testing::Test {
protected:
    ScrollMark() {
        rows.resize(areaWidth, areaHeight);
        rows.show();
        QApplication::setActiveWindow(&rows);
    }

    void fill(int count) {
        SnakeCore::HighScores table;
        for (int index = 0; index < count; ++index) {
            table.record(SnakeCore::UUID::random(), "A", 9 - index, "Classic", SnakeCore::Date{0});
        }
        rows.setEntries(table.leaders("Classic"));
        // The rows are laid out first, and then what they need room for.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QScrollArea& area() { return *rows.findChild<QScrollArea*>(); }

    void focusBy(Qt::FocusReason reason) {
        area().setFocus(reason);
        QCoreApplication::processEvents();
    }

    /// The colour of the mark over the plate of a row and over the gap between two.
    [[nodiscard]] static bool isMark(const QColor& seen) {
        const QColor onGap = onBlack(Garden::withOpacity(Garden::muted, 0.4));
        const QColor onPlate = Look::over(Garden::withOpacity(Garden::muted, 0.4),
                                          onBlack(Garden::withOpacity(Qt::white, 0.025)));
        return Look::distance(seen, onGap) <= 2 || Look::distance(seen, onPlate) <= 2;
    }

    /// The part of the mark's way that is marked.
    [[nodiscard]] QRect mark() {
        const QImage seen = picture(rows);
        QRect marked;
        for (int y = 0; y < areaHeight; ++y) {
            for (int x = areaWidth - 12; x < areaWidth; ++x) {
                marked |= isMark(seen.pixelColor(x, y)) ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return marked;
    }

    /// How many places along the outline of the board are in mint.
    [[nodiscard]] int ringed() {
        const QImage seen = picture(rows);
        int count = 0;
        for (const int y : {0, areaHeight - 1}) {
            for (int x = areaWidth / 4; x < 3 * areaWidth / 4; ++x) {
                count += Look::distance(seen.pixelColor(x, y), Garden::mint) < 20 ? 1 : 0;
            }
        }
        for (const int x : {0, areaWidth - 1}) {
            for (int y = areaHeight / 4; y < 3 * areaHeight / 4; ++y) {
                count += Look::distance(seen.pixelColor(x, y), Garden::mint) < 20 ? 1 : 0;
            }
        }
        return count;
    }

    ScoreRows rows;
};

}  // namespace

TEST_F(ScrollMark, isNotThereWhereEverythingIsInSight) {
    fill(3);

    EXPECT_TRUE(mark().isEmpty());
}

TEST_F(ScrollMark, liesInThePaddingOfTheRowsAtTheRight) {
    fill(9);

    EXPECT_EQ(mark().left(), markLeft);
    EXPECT_EQ(mark().width(), markWidth);
    // It is as long, of the board, as what is in sight is of all rows.
    const int whole = area().widget()->height();
    EXPECT_NEAR(mark().height(), areaHeight * areaHeight / whole, 8);
}

TEST_F(ScrollMark, goesFromTheTopToTheBottomWithTheRows) {
    fill(9);
    QScrollBar& bar = *area().verticalScrollBar();
    EXPECT_LE(mark().top(), 5);

    bar.setValue(bar.maximum());
    EXPECT_GE(mark().bottom(), areaHeight - 6);

    bar.setValue(bar.maximum() / 2);
    EXPECT_NEAR(mark().center().y(), areaHeight / 2, 3);
}

TEST_F(ScrollMark, isDraggedByThePointer) {
    fill(9);
    const QPoint begin = mark().center();
    auto* bar = rows.childAt(begin);
    ASSERT_NE(qobject_cast<QScrollBar*>(bar), nullptr);

    QTest::mousePress(bar, Qt::LeftButton, {}, bar->mapFrom(&rows, begin));
    QTest::mouseMove(bar, bar->mapFrom(&rows, QPoint(begin.x(), areaHeight)));
    QTest::mouseRelease(bar, Qt::LeftButton, {},
                        bar->mapFrom(&rows, QPoint(begin.x(), areaHeight)));

    EXPECT_EQ(area().verticalScrollBar()->value(), area().verticalScrollBar()->maximum());
}

TEST_F(ScrollMark, followsTheKeys) {
    fill(9);
    focusBy(Qt::TabFocusReason);
    const int before = mark().top();

    QTest::keyClick(&area(), Qt::Key_PageDown);

    EXPECT_GT(mark().top(), before);
}

TEST_F(ScrollMark, aRingGoesRoundTheRowsForTheKeyboard) {
    fill(9);
    EXPECT_EQ(ringed(), 0);

    focusBy(Qt::TabFocusReason);
    EXPECT_EQ(ringed(), 2 * (areaWidth / 2) + 2 * ((3 * areaHeight / 4) - areaHeight / 4));

    area().clearFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(ringed(), 0);
}

TEST_F(ScrollMark, noRingGoesRoundTheRowsForThePointer) {
    fill(9);
    focusBy(Qt::MouseFocusReason);

    EXPECT_TRUE(area().hasFocus());
    EXPECT_EQ(ringed(), 0);
}
