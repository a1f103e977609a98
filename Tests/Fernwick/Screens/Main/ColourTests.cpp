#include <QTest>
#include <array>

#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "SnakeCore/Game.hpp"

// Colours on the finished window, at places that the numbers determine.

namespace {

using Look::colourAt;
using Look::distance;
using Look::expectColour;
using Look::over;
using SnakeCore::Direction;
using SnakeCore::Game;

constexpr QColor fruit = Garden::srgb(1.0, 0.52, 0.39);
constexpr QColor tail = Garden::srgb(0.23, 0.58, 0.40);
// Dithered ground may be a step off, and so may what is laid over it.
constexpr int dithered = 2;

class WindowColours : public LookTest {
protected:
    using LookTest::LookTest;

    /// A run whose snake has just stepped in `direction`.
    void runTowards(Direction direction) {
        Game game(Session::columns, Session::rows);
        if (direction == Direction::left) {
            game.turn(Direction::up);
            game.step();
        }
        game.turn(direction);
        game.step();
        ASSERT_EQ(game.direction(), direction);
        startRunAt(game);
        settle();
    }

    /// A place on the board that neither the snake nor the fruit comes near.
    [[nodiscard]] QPointF emptyGround() const { return middleOf({3, 20}) + QPointF(0, cell() / 2); }

    [[nodiscard]] QColor seenAt(const QPointF& point) { return colourAt(picture(), point); }

    /// The plate of a row, left of everything that is written on it.
    [[nodiscard]] QPointF plateOf(const ScoreRow& row) const {
        return QRectF(placeOf(row)).center() - QPointF(row.width() / 2.0 - 6, 0);
    }

    [[nodiscard]] QPointF fillOf(const QString& button_) const {
        const QRectF place = placeOf(*button(button_));
        return {place.left() + 20, place.center().y()};
    }

    void expectText(const QString& text, int tolerance) {
        SCOPED_TRACE(text.toStdString());
        const QRect place = placeOf(label(text));
        const QImage seen = picture();
        const QColor ground = colourAt(seen, place.topLeft());
        EXPECT_LE(Look::nearestTo(over(label(text).colour(), ground), seen, place), tolerance);
    }
};

class WindowColoursWithASavedScore : public WindowColours {
protected:
    WindowColoursWithASavedScore() : WindowColours({{"Grace", 2000}}) {}
};

INSTANTIATE_TEST_SUITE_P(Look, WindowColours, bothSizes, nameOfSize);
INSTANTIATE_TEST_SUITE_P(Look, WindowColoursWithASavedScore, bothSizes, nameOfSize);

}  // namespace

TEST_P(WindowColours, lightTheCornerWithMintAndLeaveTheFarSideInTheNight) {
    const QImage seen = picture();

    expectColour(colourAt(seen, {0, 0}),
                 over(Garden::withOpacity(Garden::mint, 0.075), Garden::night), dithered);
    expectColour(colourAt(seen, {400, 2}),
                 over(Garden::withOpacity(Garden::mint, 0.075 / 2), Garden::night), dithered);
    expectColour(colourAt(seen, {window.width() - 3.0, 3}), Garden::night, 1);
}

TEST_P(WindowColours, strokeTheFrameAlongItsOutline) {
    startRun();
    const QImage seen = picture();
    const QPointF innerSide(boardFrame().center().x(), boardFrame().top() + 0.01);
    const double covered = std::min(1.0, seen.devicePixelRatio() / 2);

    expectColour(colourAt(seen, innerSide),
                 over(Garden::withOpacity(Garden::mint, 0.16 * covered), Garden::soil), dithered);
}

TEST_P(WindowColours, dotTheBoardFaintly) {
    startRun();
    const QImage seen = picture();

    const QColor dot = colourAt(seen, middleOf({3, 18}));
    const QColor whole = over(Garden::withOpacity(Garden::mint, 0.12), Garden::soil);

    expectColour(colourAt(seen, emptyGround()), Garden::soil, 1);
    EXPECT_GT(dot.green(), Garden::soil.green() + 5);
    EXPECT_LE(dot.green(), whole.green() + 1);
}

TEST_P(WindowColours, paintTheFruitTheTailAndTheHead) {
    startRun();
    const QImage seen = picture();
    const Game& game = session.game();

    expectColour(colourAt(seen, middleOf(game.food())), fruit, 1);
    expectColour(colourAt(seen, middleOf(game.snake().back())), tail, dithered);
    expectColour(colourAt(seen, middleOf(game.snake().front())), Garden::mint, dithered);
}

TEST_P(WindowColours, openTheEyesTowardsWhereTheSnakeGoes) {
    struct Eyes {
        Direction direction;
        QPointF one;
        QPointF other;
    };
    const std::array table{Eyes{Direction::up, {-0.16, -0.15}, {0.16, -0.15}},
                           Eyes{Direction::down, {-0.16, 0.15}, {0.16, 0.15}},
                           Eyes{Direction::left, {-0.15, -0.16}, {-0.15, 0.16}},
                           Eyes{Direction::right, {0.15, -0.16}, {0.15, 0.16}}};
    for (const Eyes& eyes : table) {
        SCOPED_TRACE(static_cast<int>(eyes.direction));
        runTowards(eyes.direction);
        const QImage seen = picture();
        const QPointF head = middleOf(session.game().snake().front());
        for (const QPointF& eye : {eyes.one, eyes.other}) {
            EXPECT_LT(colourAt(seen, head + cell() * eye).green(), 110);
            EXPECT_GT(colourAt(seen, head - cell() * eye * 1.8).green(), 150);
        }
    }
}

TEST_P(WindowColours, dimTheIdleBoardUnderTheCards) {
    expectColour(seenAt(emptyGround()), over(QColor::fromRgbF(0, 0, 0, 0.48F), Garden::soil),
                 dithered);

    endRunAwaitingName();

    expectColour(seenAt(emptyGround()), over(QColor::fromRgbF(0, 0, 0, 0.65F), Garden::soil),
                 dithered);
}

TEST_P(WindowColours, writeTheTitlesInTheirColours) {
    expectText("FERNWICK", 12);
    expectText("Find your flow.", 12);

    endRunAwaitingName();

    expectText("Game over.", 12);
    expectText("Leave your name in the garden.", 30);
}

TEST_P(WindowColours, writeTheNumbersAndTheRunningDotInMint) {
    startRun();
    const QImage seen = picture();

    expectColour(colourAt(seen, QRectF(placeOf(the<Garden::StatusDot>())).center()), Garden::mint,
                 1);
    EXPECT_LE(Look::nearestTo(Garden::mint, seen, QRectF(window.width() - 140, 60, 102, 50)), 20);
    pauseRun();
    expectColour(seenAt(QRectF(placeOf(the<Garden::StatusDot>())).center()), Garden::muted, 1);
}

TEST_P(WindowColours, fillTheMintButtonByItsThreeStates) {
    endRunAwaitingName();
    session.editName(QStringLiteral("Ada"));
    settle();
    expectColour(seenAt(fillOf("Save score")), Garden::mint, 1);
    const QColor ground = seenAt(fillOf("Save score") - QPointF(30, 0));

    QTest::mousePress(button("Save score"), Qt::LeftButton);
    const QColor pressed = seenAt(fillOf("Save score"));
    session.editName(QString());
    settle();
    QTest::mouseRelease(button("Save score"), Qt::LeftButton, {}, QPoint(-40, 0));

    expectColour(pressed, over(Garden::withOpacity(Garden::mint, 0.7), ground), dithered);
    expectColour(seenAt(fillOf("Save score")), over(Garden::withOpacity(Garden::mint, 0.3), ground),
                 dithered);
}

TEST_P(WindowColours, layTheSheetInPlainNight) {
    session.openScores();
    settle();
    const QRectF sheet = placeOf(the<HighScoresView>());

    expectColour(seenAt({sheet.left() + 12, sheet.center().y()}), Garden::night, 0);
    expectColour(seenAt({sheet.right() - 12, sheet.center().y()}), Garden::night, 0);
}

TEST_P(WindowColoursWithASavedScore, layEachRowOnAFaintPlateAndTheSavedOneOnMint) {
    saveRunAs("Ada");
    const QList<ScoreRow*> rows = window.findChildren<ScoreRow*>();
    ASSERT_EQ(rows.size(), 2);
    const QColor ground = seenAt(placeOf(*rows[1]).bottomLeft() + QPointF(6, 30));

    expectColour(seenAt(plateOf(*rows[0])), over(Garden::withOpacity(Qt::white, 0.025), ground),
                 dithered);
    expectColour(seenAt(plateOf(*rows[1])), over(Garden::withOpacity(Garden::mint, 0.12), ground),
                 dithered);
}
