#include <QTest>
#include <array>

#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "SnakeCore/Game.hpp"

// Colours of pixels of the rendered window, at positions known from the layout.

namespace {

using Look::colourAt;
using Look::distance;
using Look::expectColour;
using Look::over;
using SnakeCore::Direction;
using SnakeCore::Game;

constexpr QColor fruit = Garden::srgb(1.0, 0.52, 0.39);
constexpr QColor tail = Garden::srgb(0.23, 0.58, 0.40);
// Dithering and blending may be off by one step each.
constexpr int dithered = 2;

class WindowColours : public LookTest {
protected:
    using LookTest::LookTest;

    /// Starts a run whose snake has just moved in `direction`.
    void startRunTowards(Direction direction) {
        Game game(Session::columns, Session::rows);
        if (direction == Direction::left) {
            game.turn(Direction::up);
            game.step();
        }
        game.turn(direction);
        game.step();
        ASSERT_EQ(game.direction(), direction);
        startRunAt(game);
        processEvents();
    }

    /// A point of the board far from the snake and the fruit.
    [[nodiscard]] QPointF emptyBoard() const { return centreOf({3, 20}) + QPointF(0, cell() / 2); }

    [[nodiscard]] QColor windowColourAt(const QPointF& point) { return colourAt(picture(), point); }

    /// A point of the background of a row, to the left of its texts.
    [[nodiscard]] QPointF backgroundOf(const ScoreRow& row) const {
        return QRectF(rectOf(row)).center() - QPointF(row.width() / 2.0 - 6, 0);
    }

    [[nodiscard]] QPointF fillOf(const QString& buttonName) const {
        const QRectF area = rectOf(*button(buttonName));
        return {area.left() + 20, area.center().y()};
    }

    void expectText(const QString& text, int tolerance) {
        SCOPED_TRACE(text.toStdString());
        const QRect area = labelRect(text);
        const QImage seen = picture();
        const QColor ground = colourAt(seen, area.topLeft());
        EXPECT_LE(Look::nearestTo(over(label(text).colour(), ground), seen, area), tolerance);
    }
};

class WindowColoursWithASavedScore : public WindowColours {
protected:
    WindowColoursWithASavedScore() : WindowColours({{"Grace", 2000}}) {}
};

INSTANTIATE_TEST_SUITE_P(Look, WindowColours, windowSizes, sizeName);
INSTANTIATE_TEST_SUITE_P(Look, WindowColoursWithASavedScore, windowSizes, sizeName);

}  // namespace

TEST_P(WindowColours, backgroundFadesFromMintToNight) {
    const QImage seen = picture();

    expectColour(colourAt(seen, {0, 0}),
                 over(Garden::withOpacity(Garden::mint, 0.075), Garden::night), dithered);
    expectColour(colourAt(seen, {400, 2}),
                 over(Garden::withOpacity(Garden::mint, 0.075 / 2), Garden::night), dithered);
    expectColour(colourAt(seen, {window.width() - 3.0, 3}), Garden::night, 1);
}

TEST_P(WindowColours, boardFrameHasAMintOutline) {
    startRun();
    const QImage seen = picture();
    // At scale 1 this pixel is partly outside of the fill.
    const QPointF innerSide(boardFrame().center().x(), boardFrame().top() + 0.01);

    expectColour(colourAt(seen, innerSide),
                 over(Garden::withOpacity(Garden::mint, 0.16), Garden::soil), dithered + 2);
}

TEST_P(WindowColours, boardDotsAreFaintMint) {
    startRun();
    const QImage seen = picture();

    const QColor dot = colourAt(seen, centreOf({3, 18}));
    const QColor whole = over(Garden::withOpacity(Garden::mint, 0.12), Garden::soil);

    expectColour(colourAt(seen, emptyBoard()), Garden::soil, 1);
    EXPECT_GT(dot.green(), Garden::soil.green() + 5);
    EXPECT_LE(dot.green(), whole.green() + 1);
}

TEST_P(WindowColours, fruitTailAndHeadHaveTheirColours) {
    startRun();
    const QImage seen = picture();
    const Game& game = session.game();

    expectColour(colourAt(seen, centreOf(game.food())), fruit, 1);
    expectColour(colourAt(seen, centreOf(game.snake().back())), tail, dithered);
    expectColour(colourAt(seen, centreOf(game.snake().front())), Garden::mint, dithered);
}

TEST_P(WindowColours, eyesLookInTheDirectionOfTheSnake) {
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
        startRunTowards(eyes.direction);
        const QImage seen = picture();
        const QPointF head = centreOf(session.game().snake().front());
        for (const QPointF& eye : {eyes.one, eyes.other}) {
            EXPECT_LT(colourAt(seen, head + cell() * eye).green(), 110);
            EXPECT_GT(colourAt(seen, head - cell() * eye * 1.8).green(), 150);
        }
    }
}

TEST_P(WindowColours, boardIsDimmedBehindCards) {
    expectColour(windowColourAt(emptyBoard()), over(QColor::fromRgbF(0, 0, 0, 0.48F), Garden::soil),
                 dithered);

    playToNameEntry();

    expectColour(windowColourAt(emptyBoard()), over(QColor::fromRgbF(0, 0, 0, 0.65F), Garden::soil),
                 dithered);
}

TEST_P(WindowColours, titlesHaveTheirColours) {
    expectText("FERNWICK", 12);
    expectText("Find your flow.", 12);

    playToNameEntry();

    expectText("Game over.", 12);
    expectText("Leave your name in the garden.", 30);
}

TEST_P(WindowColours, numbersAndTheRunningStatusDotAreMint) {
    startRun();
    const QImage seen = picture();

    expectColour(colourAt(seen, QRectF(rectOf<Garden::StatusDot>()).center()), Garden::mint, 1);
    EXPECT_LE(Look::nearestTo(Garden::mint, seen, QRectF(window.width() - 140, 60, 102, 50)), 20);
    startAndPauseRun();
    expectColour(windowColourAt(QRectF(rectOf<Garden::StatusDot>()).center()), Garden::muted, 1);
}

TEST_P(WindowColours, mintButtonFillsDifferWhenPressedAndDisabled) {
    playToNameEntry();
    session.editName(QStringLiteral("Ada"));
    processEvents();
    expectColour(windowColourAt(fillOf("Save score")), Garden::mint, 1);
    const QColor ground = windowColourAt(fillOf("Save score") - QPointF(30, 0));

    QTest::mousePress(button("Save score"), Qt::LeftButton);
    const QColor pressed = windowColourAt(fillOf("Save score"));
    session.editName(QString());
    processEvents();
    QTest::mouseRelease(button("Save score"), Qt::LeftButton, {}, QPoint(-40, 0));

    expectColour(pressed, over(Garden::withOpacity(Garden::mint, 0.7), ground), dithered);
    expectColour(windowColourAt(fillOf("Save score")),
                 over(Garden::withOpacity(Garden::mint, 0.3), ground), dithered);
}

TEST_P(WindowColours, scoreSheetBackgroundIsNight) {
    openScores();
    const QRectF sheet = rectOf<HighScoresView>();

    expectColour(windowColourAt({sheet.left() + 12, sheet.center().y()}), Garden::night, 0);
    expectColour(windowColourAt({sheet.right() - 12, sheet.center().y()}), Garden::night, 0);
}

TEST_P(WindowColoursWithASavedScore, rowsAreFaintWhiteAndTheSavedRowIsMint) {
    playAndSaveAs("Ada");
    const QList<ScoreRow*> rows = window.findChildren<ScoreRow*>();
    ASSERT_EQ(rows.size(), 2);
    const QColor ground = windowColourAt(rectOf(*rows[1]).bottomLeft() + QPointF(6, 30));

    expectColour(windowColourAt(backgroundOf(*rows[0])),
                 over(Garden::withOpacity(Qt::white, 0.025), ground), dithered);
    expectColour(windowColourAt(backgroundOf(*rows[1])),
                 over(Garden::withOpacity(Garden::mint, 0.12), ground), dithered);
}
