#include <QMenuBar>

#include "Fernwick/Painting/PictureDifference.hpp"
#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
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

    [[nodiscard]] QRectF labelInk(const QImage& seen, const QString& text) const {
        return Look::inkOf(muted, seen, labelRect(text));
    }

    [[nodiscard]] QRect numberRect(const QString& tile) const { return rectOf(number(tile)); }
};

INSTANTIATE_TEST_SUITE_P(Look, MainScreenLook, windowSizes, sizeName);

}  // namespace

TEST_P(MainScreenLook, hasTheRequestedSize) {
    EXPECT_EQ(window.size(), GetParam());
}

TEST_P(MainScreenLook, hasPaddingOf46AtTheTop38AtTheSidesAnd26AtTheBottom) {
    EXPECT_EQ(rectOf<HeaderRow>().topLeft(), QPoint(38, 46));
    EXPECT_EQ(bottomOf(rectOf<HintRow>()), window.height() - 26);
    for (const QRect& row :
         {rectOf<HeaderRow>(), rectOf<ControlRow>(), rectOf<BoardArea>(), rectOf<HintRow>()}) {
        EXPECT_EQ(row.x(), 38);
        EXPECT_EQ(row.width(), window.width() - 2 * 38);
    }
}

TEST_P(MainScreenLook, spacesTheRowsBy23) {
    EXPECT_EQ(rectOf<ControlRow>().y() - bottomOf(rectOf<HeaderRow>()), 23);
    EXPECT_EQ(rectOf<BoardArea>().y() - bottomOf(rectOf<ControlRow>()), 23);
    EXPECT_EQ(rectOf<HintRow>().y() - bottomOf(rectOf<BoardArea>()), 23);
}

TEST_P(MainScreenLook, placesTheWordmark9AfterTheLeaf) {
    const QRect leaf = rectOf(*child<HeaderRow>().findChild<Garden::IconView*>());
    const QRect word = labelRect("FERNWICK");

    EXPECT_EQ(leaf, QRect(38, leaf.y(), 14, 14));
    EXPECT_EQ(word.x() - rightOf(leaf), 9);
    EXPECT_NEAR(QRectF(word).center().y(), QRectF(leaf).center().y(), 0.5);
    EXPECT_EQ(child<HeaderRow>().findChild<Garden::IconView*>()->icon(), Garden::Icon::leafFilled);
    EXPECT_EQ(child<HeaderRow>().findChild<Garden::IconView*>()->colour(), mint);
    expectLabel("FERNWICK", {Look::sans, 14, QFont::DemiBold, 6}, Garden::primaryText);
}

TEST_P(MainScreenLook, setsTheTaglineInSerif) {
    const QRect line = labelRect("A little room to grow.");

    EXPECT_EQ(line.x(), 38);
    EXPECT_GE(line.y(), bottomOf(labelRect("FERNWICK")));
    EXPECT_LE(bottomOf(line), bottomOf(rectOf<HeaderRow>()));
    expectLabel("A little room to grow.", {Look::serif, 27, QFont::ExtraLight},
                Garden::withOpacity(Qt::white, 0.9));
}

TEST_P(MainScreenLook, placesEachNumber14BelowItsLabel) {
    const QImage seen = picture();
    for (const QString& tile : {QStringLiteral("SCORE"), QStringLiteral("PERSONAL BEST")}) {
        const QRectF digits = Look::inkOf(mint, seen, numberRect(tile));
        EXPECT_NEAR(digits.top() - labelInk(seen, tile).bottom(), 14, 1);
        expectLabel(tile, smallType, muted);
        Look::expectType(number(tile), {Look::mono, 33, QFont::Light});
    }
}

TEST_P(MainScreenLook, alignsTheDigitsOfTheScoreLeftAndOfTheBestRight) {
    const QImage seen = picture();
    const QRectF score = Look::inkOf(mint, seen, numberRect("SCORE"));
    const QRectF best = Look::inkOf(mint, seen, numberRect("PERSONAL BEST"));

    EXPECT_NEAR(score.left(), labelInk(seen, "SCORE").left(), 1);
    EXPECT_NEAR(best.right(), labelInk(seen, "PERSONAL BEST").right(), 1);
    EXPECT_EQ(rightOf(labelRect("PERSONAL BEST")), rightEdge());
    EXPECT_EQ(rightOf(numberRect("PERSONAL BEST")), rightEdge());
}

TEST_P(MainScreenLook, separatesTheTilesByARuleWith12OnEachSide) {
    const QRect rule = rectOf(*window.findChild<QWidget*>("rule"));
    const QRect scoreTile = labelRect("SCORE") | numberRect("SCORE");
    const QRect bestTile = labelRect("PERSONAL BEST") | numberRect("PERSONAL BEST");

    EXPECT_EQ(rule.size(), QSize(1, 36));
    EXPECT_EQ(rule.x() - rightOf(scoreTile), 12);
    EXPECT_EQ(bestTile.x() - rightOf(rule), 12);
    const QImage seen = picture();
    const QRectF ink = labelInk(seen, "SCORE") | Look::inkOf(mint, seen, numberRect("SCORE"));
    EXPECT_NEAR(QRectF(rule).center().y(), ink.center().y(), 1);
}

TEST_P(MainScreenLook, centresTheRuleBesideALabelOfTallerLetters) {
    const QString arabic = QStringLiteral("أفضل نتيجة لك");
    for (auto* label : window.findChildren<Garden::TrackedLabel*>()) {
        if (label->text() == QStringLiteral("PERSONAL BEST")) {
            label->setText(arabic);
        }
    }
    QCoreApplication::processEvents();

    const QImage seen = picture();
    const QRectF rule = rectOf(*window.findChild<QWidget*>("rule"));
    const QRectF ink =
        labelInk(seen, arabic) | Look::inkOf(mint, seen, numberRect("PERSONAL BEST"));
    EXPECT_NEAR(rule.center().y(), ink.center().y(), 2);
}

TEST_P(MainScreenLook, padsTheSpeedGroupBy4AndItsButtonsBy17And9) {
    const QRect group = rectOf<Garden::ChoiceGroup>();
    EXPECT_EQ(group.topLeft(), rectOf<ControlRow>().topLeft());

    QRect words;
    for (const QString& speed : paceNames()) {
        const QAbstractButton& word = *button(speed);
        const QFontMetricsF metrics(word.font());
        EXPECT_EQ(word.width(), std::ceil(metrics.horizontalAdvance(speed)) + 2 * 17);
        EXPECT_EQ(word.height(), std::ceil(metrics.height()) + 2 * 9);
        Look::expectType(word, {Look::sans, 12, QFont::Medium});
        words |= rectOf(word);
    }
    EXPECT_EQ(words.marginsAdded(QMargins(4, 4, 4, 4)), group);
}

TEST_P(MainScreenLook, rightAlignsTheStatusAfterADotOf5) {
    const QRect dot = rectOf<Garden::StatusDot>();
    const QRect word = labelRect("THE CLASSIC, REPLANTED");

    EXPECT_EQ(Look::inkOf(muted, picture(), dot).size(), QSizeF(5, 5));
    EXPECT_EQ(rightOf(word), rightEdge());
    EXPECT_LT(rightOf(dot), word.x());
    EXPECT_NEAR(QRectF(dot).center().y(), QRectF(word).center().y(), 0.5);
    expectLabel("THE CLASSIC, REPLANTED", smallType, muted);
}

TEST_P(MainScreenLook, centresABoardOf28By22CellsInItsArea) {
    const QRectF area = rectOf<BoardArea>();
    const double cell = std::min(area.width() / 28, area.height() / 22);

    EXPECT_DOUBLE_EQ(boardFrame().width(), 28 * cell);
    EXPECT_DOUBLE_EQ(boardFrame().height(), 22 * cell);
    EXPECT_DOUBLE_EQ(boardFrame().center().x(), area.center().x());
    EXPECT_DOUBLE_EQ(boardFrame().center().y(), area.center().y());
    EXPECT_EQ(rectOf<Board>(), boardFrame().toAlignedRect());
}

TEST_P(MainScreenLook, setsTheHintsInMonospacedFaintMint) {
    const QColor faint = Garden::withOpacity(mint, 0.8);
    const QString move = QStringLiteral("or WASD to move");
    const QString rest = QStringLiteral("·   SPACE to pause   ·   R to restart");

    expectLabel("↑ ↓ ← →", {Look::mono, 13, QFont::Normal}, faint);
    expectLabel(move, {Look::mono, 11, QFont::Normal}, faint);
    expectLabel(rest, {Look::mono, 11, QFont::Normal}, faint);
    EXPECT_EQ(labelRect("↑ ↓ ← →").x(), 38);
    EXPECT_EQ(labelRect(move).x() - rightOf(labelRect("↑ ↓ ← →")), 9);
    EXPECT_EQ(labelRect(rest).x() - rightOf(labelRect(move)), 20);
}

TEST_P(MainScreenLook, placesThreeIconButtonsOf26With8Between) {
    const QRect scores = rectOf(*button("High scores"));
    const QRect sound = rectOf(*button("Toggle sound effects"));
    const QRect pause = rectOf(*button("Pause or resume"));

    for (const QRect& symbol : {scores, sound, pause}) {
        EXPECT_EQ(symbol.size(), QSize(26, 26));
        EXPECT_EQ(symbol.y(), pause.y());
    }
    EXPECT_EQ(sound.x() - rightOf(scores), 8);
    EXPECT_EQ(pause.x() - rightOf(sound), 8);
    EXPECT_EQ(rightOf(pause), rightEdge());
}

TEST_P(MainScreenLook, alignsTheMenuWithTheRows) {
    const auto& bar = child<QMenuBar>();
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

// So on Wayland while the scale of the screen changes.
TEST_P(MainScreenLook, isTheSameOnABufferOfAnotherRatioThanTheWindow) {
    startRun();
    const QSize size = window.size();
    const QImage expected = grab().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);

    QImage doubled(size * 2 * window.devicePixelRatioF(), QImage::Format_RGB32);
    doubled.setDevicePixelRatio(2 * window.devicePixelRatioF());
    window.render(&doubled);

    const QImage shown = doubled.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_LT(difference(shown, expected).mean, 1);
}
