#include <gtest/gtest.h>

#include "Painting/Board/BoardGeometry.hpp"
#include "Screens/Main/Arrangement.hpp"

namespace {

constexpr int band = 46;

/// The height of the board beside a column.
double boardBeside(const Arrangement& arrangement) {
    const QRect space =
        arrangement.content.adjusted(arrangement.columnWidth + arrangement.spacing, 0, 0, 0);
    return Painting::fitBoard(space, {28, 22}).frame.height();
}

}  // namespace

TEST(Arrangement, hasItsFullSizeFromTheSmallestFreeWindowOn) {
    for (const QSize size : {QSize(820, 760), QSize(940, 860), QSize(1366, 768), QSize(1920, 1080),
                             QSize(3840, 2160)}) {
        for (const int covered : {0, band}) {
            const Arrangement arrangement = arrangementFor(size, covered);

            EXPECT_EQ(arrangement.content, QRect(QPoint(), size).marginsRemoved({38, 46, 38, 26}));
            EXPECT_EQ(arrangement.spacing, 23);
            EXPECT_EQ(arrangement.rows, Garden::Density());
            EXPECT_EQ(arrangement.hints, Garden::Density());
            EXPECT_FALSE(arrangement.beside);
            EXPECT_FALSE(arrangement.foldedHints);
        }
    }
}

TEST(Arrangement, givesUpAirBeforeAnythingElse) {
    const Arrangement full = arrangementFor({1280, 760}, 0);
    const Arrangement lower = arrangementFor({1280, 720}, 0);

    EXPECT_FALSE(lower.beside);
    EXPECT_EQ(lower.rows, Garden::Density());
    EXPECT_LT(lower.spacing, full.spacing);
    EXPECT_LT(lower.content.top(), full.content.top());
    // What is left for the board is what it has in the smallest free window.
    EXPECT_NEAR(lower.content.height() - 3 * lower.spacing,
                full.content.height() - 3 * full.spacing, 2);
}

TEST(Arrangement, putsTheRowsBesideTheBoardOfALowWindow) {
    for (const QSize size : {QSize(1024, 600), QSize(960, 540), QSize(853, 480), QSize(640, 360)}) {
        for (const int covered : {0, band}) {
            const Arrangement arrangement = arrangementFor(size, covered);

            EXPECT_TRUE(arrangement.beside);
            EXPECT_TRUE(QRect(QPoint(), size).contains(arrangement.content));
            EXPECT_GT(boardBeside(arrangement), 0.83 * size.height());
        }
    }
}

TEST(Arrangement, keepsTheRowsOfANarrowHighWindow) {
    for (const QSize size : {QSize(640, 1048), QSize(760, 600)}) {
        const Arrangement arrangement = arrangementFor(size, band);

        EXPECT_FALSE(arrangement.beside);
        EXPECT_TRUE(arrangement.foldedHints);
    }
}

TEST(Arrangement, shrinksTheColumnOnlyInTheSmallestWindows) {
    EXPECT_EQ(arrangementFor({1024, 600}, 0).rows.scale, 1);
    EXPECT_EQ(arrangementFor({853, 480}, 0).rows.scale, 1);
    EXPECT_EQ(arrangementFor({640, 360}, 0).rows.scale, 0.8);
}

TEST(Arrangement, keepsRowsAndBoardTogetherInVeryWideAndVeryHighWindows) {
    const QRect wide = arrangementFor({3440, 1440}, 0).content;
    const QRect high = arrangementFor({1080, 1920}, 0).content;

    EXPECT_EQ(wide.width(), 2 * 1440 - 2 * 38);
    EXPECT_EQ(wide.left(), 3440 - 1 - wide.right());
    EXPECT_EQ(high.height(), 1350 - 46 - 26);
    EXPECT_EQ(high.top() - 46, 1920 - 1 - high.bottom() - 26);
}

TEST(Arrangement, enlargesTheRowsWithTheTexts) {
    for (const QSize size : {QSize(820, 760), QSize(940, 860), QSize(1920, 1080)}) {
        const Arrangement usual = arrangementFor(size, band);
        const Arrangement larger = arrangementFor(size, band, 1.25);

        EXPECT_EQ(larger.content, usual.content);
        EXPECT_EQ(larger.rows, (Garden::Density{1, 1.25}));
        EXPECT_EQ(larger.hints, (Garden::Density{1, 1.25}));
    }
}

TEST(Arrangement, foldsHintsThatBecomeTooWide) {
    EXPECT_FALSE(arrangementFor({940, 860}, band).foldedHints);
    EXPECT_TRUE(arrangementFor({940, 860}, band, 1.25).foldedHints);
    EXPECT_FALSE(arrangementFor({1920, 1080}, band, 1.5).foldedHints);
}

TEST(Arrangement, enlargesTheRowsOnlyAsFarAsThereIsRoom) {
    const double narrow = arrangementFor({820, 760}, band, 3).rows.scale;
    const double low = arrangementFor({1920, 760}, band, 3).rows.scale;

    EXPECT_GT(narrow, 1.25);
    EXPECT_LT(narrow, 1.4);
    EXPECT_GT(low, 1.5);
    EXPECT_LT(low, 1.7);
    EXPECT_GE(arrangementFor({640, 1048}, band, 3).rows.scale, 1);
}

TEST(Arrangement, enlargesTheColumnBesideTheBoard) {
    const Arrangement usual = arrangementFor({1280, 600}, 0);
    const Arrangement larger = arrangementFor({1280, 600}, 0, 1.25);

    EXPECT_TRUE(larger.beside);
    EXPECT_EQ(larger.rows.scale, 1.25);
    EXPECT_GT(larger.columnWidth, usual.columnWidth);
    EXPECT_TRUE(QRect(0, 0, 1280, 600).contains(larger.content));
}
