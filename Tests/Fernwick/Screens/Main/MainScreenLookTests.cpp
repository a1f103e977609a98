#include <QMenuBar>

#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/Rule.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Screens/Main/Board.hpp"
#include "Screens/Main/ControlRow.hpp"
#include "Screens/Main/HeaderRow.hpp"
#include "Screens/Main/HintRow.hpp"

namespace {

using Garden::mint;
using Garden::muted;
using Look::bottomOf;
using Look::rightOf;

constexpr Look::Type smallType{Look::sans, 9, QFont::Medium, 2};
constexpr int sidePadding = 38;

class MainScreenLook : public LookTest {
protected:
    [[nodiscard]] int rightEdge() const { return window.width() - sidePadding; }

    [[nodiscard]] const Garden::RollingDigits& number(const QString& tile) const {
        const QList<Garden::RollingDigits*> both = window.findChildren<Garden::RollingDigits*>();
        return both[0]->accessibleName() == tile ? *both[0] : *both[1];
    }

    [[nodiscard]] QRect digits(const QString& tile) const { return placeOf(number(tile)); }

    template <typename T>
    [[nodiscard]] QRect place() const {
        return placeOf(the<T>());
    }
};

INSTANTIATE_TEST_SUITE_P(Look, MainScreenLook, bothSizes, nameOfSize);

}  // namespace

TEST_P(MainScreenLook, hasTheSizeThatIsAskedFor) {
    EXPECT_EQ(window.size(), GetParam());
}

TEST_P(MainScreenLook, padsTheRowsBy38At46From26) {
    EXPECT_EQ(place<HeaderRow>().topLeft(), QPoint(38, 46));
    EXPECT_EQ(bottomOf(place<HintRow>()), window.height() - 26);
    for (const QRect& row :
         {place<HeaderRow>(), place<ControlRow>(), place<BoardArea>(), place<HintRow>()}) {
        EXPECT_EQ(row.x(), 38);
        EXPECT_EQ(row.width(), window.width() - 2 * 38);
    }
}

TEST_P(MainScreenLook, leaves23BetweenTheRows) {
    EXPECT_EQ(place<ControlRow>().y() - bottomOf(place<HeaderRow>()), 23);
    EXPECT_EQ(place<BoardArea>().y() - bottomOf(place<ControlRow>()), 23);
    EXPECT_EQ(place<HintRow>().y() - bottomOf(place<BoardArea>()), 23);
}

TEST_P(MainScreenLook, setsTheWordmark9BehindItsLeaf) {
    const QRect leaf = placeOf(*the<HeaderRow>().findChild<Garden::IconView*>());
    const QRect word = placeOf(label("FERNWICK"));

    EXPECT_EQ(leaf, QRect(38, leaf.y(), 14, 14));
    EXPECT_EQ(word.x() - rightOf(leaf), 9);
    EXPECT_NEAR(QRectF(word).center().y(), QRectF(leaf).center().y(), 0.5);
    EXPECT_EQ(the<HeaderRow>().findChild<Garden::IconView*>()->icon(), Garden::Icon::leafFilled);
    EXPECT_EQ(the<HeaderRow>().findChild<Garden::IconView*>()->colour(), mint);
    expectLabel("FERNWICK", {Look::sans, 14, QFont::DemiBold, 6}, Garden::primaryText);
}

TEST_P(MainScreenLook, setsTheLineUnderTheWordmarkInSerif) {
    const QRect line = placeOf(label("A little room to grow."));

    EXPECT_EQ(line.x(), 38);
    EXPECT_GE(line.y(), bottomOf(placeOf(label("FERNWICK"))));
    EXPECT_LE(bottomOf(line), bottomOf(place<HeaderRow>()));
    expectLabel("A little room to grow.", {Look::serif, 27, QFont::Light},
                Garden::withOpacity(Qt::white, 0.9));
}

TEST_P(MainScreenLook, setsEachTilesNumber7UnderItsLabel) {
    for (const QString& tile : {QStringLiteral("SCORE"), QStringLiteral("PERSONAL BEST")}) {
        EXPECT_EQ(digits(tile).y() - bottomOf(placeOf(label(tile))), 7);
        expectLabel(tile, smallType, muted);
        Look::expectType(number(tile), {Look::mono, 33, QFont::Light});
    }
}

TEST_P(MainScreenLook, alignsTheScoreLeftAndTheBestRight) {
    EXPECT_EQ(placeOf(label("SCORE")).x(), digits("SCORE").x());
    EXPECT_EQ(rightOf(placeOf(label("PERSONAL BEST"))), rightEdge());
    EXPECT_EQ(rightOf(digits("PERSONAL BEST")), rightEdge());
}

TEST_P(MainScreenLook, rulesTheTilesApartBy12OnEachSide) {
    const QRect rule = place<Garden::Rule>();
    const QRect scoreTile = placeOf(label("SCORE")) | digits("SCORE");
    const QRect bestTile = placeOf(label("PERSONAL BEST")) | digits("PERSONAL BEST");

    EXPECT_EQ(rule.size(), QSize(1, 36));
    EXPECT_EQ(rule.x() - rightOf(scoreTile), 12);
    EXPECT_EQ(bestTile.x() - rightOf(rule), 12);
    EXPECT_NEAR(QRectF(rule).center().y(), QRectF(place<HeaderRow>()).center().y(), 0.5);
}

TEST_P(MainScreenLook, padsTheSpeedsBy4AndTheirWordsBy17And9) {
    const QRect group = place<Garden::ChoiceGroup>();
    EXPECT_EQ(group.topLeft(), place<ControlRow>().topLeft());

    QRect words;
    for (const QString& speed : paceNames()) {
        const QAbstractButton& word = *button(speed);
        const QFontMetricsF metrics(word.font());
        EXPECT_EQ(word.width(), std::ceil(metrics.horizontalAdvance(speed)) + 2 * 17);
        EXPECT_EQ(word.height(), std::ceil(metrics.height()) + 2 * 9);
        Look::expectType(word, {Look::sans, 12, QFont::Medium});
        words |= placeOf(word);
    }
    EXPECT_EQ(words.marginsAdded(QMargins(4, 4, 4, 4)), group);
}

TEST_P(MainScreenLook, endsTheStatusAtTheRightEdgeBehindADotOf5) {
    const QRect dot = place<Garden::StatusDot>();
    const QRect word = placeOf(label("THE CLASSIC, REPLANTED"));

    EXPECT_EQ(dot.size(), QSize(5, 5));
    EXPECT_EQ(rightOf(word), rightEdge());
    EXPECT_LT(rightOf(dot), word.x());
    EXPECT_NEAR(QRectF(dot).center().y(), QRectF(word).center().y(), 0.5);
    expectLabel("THE CLASSIC, REPLANTED", smallType, muted);
}

TEST_P(MainScreenLook, fitsABoardOf28By22CellsIntoTheMiddleOfItsSpace) {
    const QRectF space = place<BoardArea>();
    const double cell = std::min(space.width() / 28, space.height() / 22);

    EXPECT_DOUBLE_EQ(boardFrame().width(), 28 * cell);
    EXPECT_DOUBLE_EQ(boardFrame().height(), 22 * cell);
    EXPECT_DOUBLE_EQ(boardFrame().center().x(), space.center().x());
    EXPECT_DOUBLE_EQ(boardFrame().center().y(), space.center().y());
    EXPECT_EQ(place<Board>(), boardFrame().toAlignedRect());
}

TEST_P(MainScreenLook, setsTheHintsInMonoInAFaintMint) {
    const QColor faint = Garden::withOpacity(mint, 0.8);
    const QString move = QStringLiteral("or WASD to move");
    const QString rest = QStringLiteral("·   SPACE to pause   ·   R to restart");

    expectLabel("↑ ↓ ← →", {Look::mono, 13, QFont::Normal}, faint);
    expectLabel(move, {Look::mono, 11, QFont::Normal}, faint);
    expectLabel(rest, {Look::mono, 11, QFont::Normal}, faint);
    EXPECT_EQ(placeOf(label("↑ ↓ ← →")).x(), 38);
    EXPECT_GT(placeOf(label(move)).x(), rightOf(placeOf(label("↑ ↓ ← →"))));
    EXPECT_GT(placeOf(label(rest)).x(), rightOf(placeOf(label(move))));
}

TEST_P(MainScreenLook, endsInThreeSymbolsOf26With8Between) {
    const QRect scores = placeOf(*button("High scores"));
    const QRect sound = placeOf(*button("Toggle sound effects"));
    const QRect pause = placeOf(*button("Pause or resume"));

    for (const QRect& symbol : {scores, sound, pause}) {
        EXPECT_EQ(symbol.size(), QSize(26, 26));
        EXPECT_EQ(symbol.y(), pause.y());
    }
    EXPECT_EQ(sound.x() - rightOf(scores), 8);
    EXPECT_EQ(pause.x() - rightOf(sound), 8);
    EXPECT_EQ(rightOf(pause), rightEdge());
}

TEST_P(MainScreenLook, beginsTheMenuWhereTheRowsBegin) {
    const auto& bar = the<QMenuBar>();
    const QImage seen = picture();
    const QRect band(0, 12, 120, 22);
    constexpr int firstColumnWithInk = 30;

    int first = band.right();
    for (int x = band.right(); x >= firstColumnWithInk; --x) {
        const QRectF column(x, band.y(), 1, band.height());
        first = Look::nearestTo(muted, seen, column) < 40 ? x : first;
    }

    EXPECT_EQ(bar.actions().constFirst()->text(), "File");
    EXPECT_NEAR(first, sidePadding, 2);
}
