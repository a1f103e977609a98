#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollArea>
#include <QTest>

#include "Fernwick/Session/SavedScores.hpp"
#include "Garden/Look/Palette.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

constexpr int areaWidth = 376;
constexpr int areaHeight = 150;
constexpr int barLeft = areaWidth - 10 + 3;
constexpr int barWidth = 4;

/// A list of scores in an active window, so that it can have the focus.
class RowsScrollBar : public ::testing::Test {
protected:
    RowsScrollBar() {
        rows.resize(areaWidth, areaHeight);
        rows.show();
        rows.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&rows));
    }

    void fill(std::size_t count) {
        rows.setEntries(scoreTable(SavedScores(count, {"A", 9})).leaders("Classic"));
        // Twice: the scroll range is updated only after the rows are laid out.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QScrollArea& area() { return *rows.findChild<QScrollArea*>(); }

    void focusBy(Qt::FocusReason reason) {
        area().setFocus(reason);
        QCoreApplication::processEvents();
    }

    /// Whether `seen` is the colour of the bar over a row or over the gap between two rows.
    [[nodiscard]] static bool isBar(const QColor& seen) {
        const QColor onGap = onBlack(Garden::withOpacity(Garden::muted, 0.4));
        const QColor onRow = Look::over(Garden::withOpacity(Garden::muted, 0.4),
                                        onBlack(Garden::withOpacity(Qt::white, 0.025)));
        return Look::distance(seen, onGap) <= 2 || Look::distance(seen, onRow) <= 2;
    }

    /// The rectangle of the scroll bar as drawn.
    [[nodiscard]] QRect bar() {
        const QImage seen = picture(rows);
        QRect bar;
        for (int y = 0; y < areaHeight; ++y) {
            for (int x = areaWidth - 12; x < areaWidth; ++x) {
                bar |= isBar(seen.pixelColor(x, y)) ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return bar;
    }

    /// The number of mint pixels along the border of the list.
    [[nodiscard]] int ringPixels() {
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

TEST_F(RowsScrollBar, isHiddenWhenAllRowsFit) {
    fill(3);

    EXPECT_TRUE(bar().isEmpty());
}

TEST_F(RowsScrollBar, liesInTheRightPaddingOfTheRows) {
    fill(9);

    EXPECT_EQ(bar().left(), barLeft);
    EXPECT_EQ(bar().width(), barWidth);
    // Its share of the list is the visible share of the rows.
    const int contentHeight = area().widget()->height();
    EXPECT_NEAR(bar().height(), areaHeight * areaHeight / contentHeight, 8);
}

TEST_F(RowsScrollBar, followsTheScrollPosition) {
    fill(9);
    QScrollBar& scrollBar = *area().verticalScrollBar();
    EXPECT_LE(bar().top(), 5);

    scrollBar.setValue(scrollBar.maximum());
    EXPECT_GE(bar().bottom(), areaHeight - 6);

    scrollBar.setValue(scrollBar.maximum() / 2);
    EXPECT_NEAR(bar().center().y(), areaHeight / 2, 3);
}

TEST_F(RowsScrollBar, canBeDragged) {
    fill(9);
    const QPoint begin = bar().center();
    auto* target = rows.childAt(begin);
    ASSERT_NE(qobject_cast<QScrollBar*>(target), nullptr);

    QTest::mousePress(target, Qt::LeftButton, {}, target->mapFrom(&rows, begin));
    QTest::mouseMove(target, target->mapFrom(&rows, QPoint(begin.x(), areaHeight)));
    QTest::mouseRelease(target, Qt::LeftButton, {},
                        target->mapFrom(&rows, QPoint(begin.x(), areaHeight)));

    EXPECT_EQ(area().verticalScrollBar()->value(), area().verticalScrollBar()->maximum());
}

TEST_F(RowsScrollBar, followsTheKeyboard) {
    fill(9);
    focusBy(Qt::TabFocusReason);
    const int before = bar().top();

    QTest::keyClick(&area(), Qt::Key_PageDown);

    EXPECT_GT(bar().top(), before);
}

TEST_F(RowsScrollBar, keyboardFocusDrawsARingAroundTheRows) {
    fill(9);
    EXPECT_EQ(ringPixels(), 0);

    focusBy(Qt::TabFocusReason);
    EXPECT_EQ(ringPixels(), 2 * (areaWidth / 2) + 2 * ((3 * areaHeight / 4) - areaHeight / 4));

    area().clearFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(ringPixels(), 0);
}

TEST_F(RowsScrollBar, mouseFocusDrawsNoRing) {
    fill(9);
    focusBy(Qt::MouseFocusReason);

    EXPECT_TRUE(area().hasFocus());
    EXPECT_EQ(ringPixels(), 0);
}
