#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Screens/Main/Overlay.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRows.hpp"

// The cards over the board and the score sheet, laid out in the main window.

namespace {

using Garden::mint;
using Garden::muted;
using Look::bottomOf;

class CardLook : public LookTest {
protected:
    /// Expects `elements` to lie in `container` one below the other, horizontally centred.
    static void expectColumn(const QRectF& container, const std::vector<QRect>& elements) {
        for (std::size_t index = 0; index < elements.size(); ++index) {
            SCOPED_TRACE(index);
            EXPECT_NEAR(QRectF(elements[index]).center().x(), container.center().x(), 0.5);
            EXPECT_TRUE(container.contains(QRectF(elements[index])));
            if (index > 0) {
                EXPECT_GE(elements[index].y(), bottomOf(elements[index - 1]));
            }
        }
    }

    static void expectSpacing(const std::vector<QRect>& elements, int spacing) {
        for (std::size_t index = 1; index < elements.size(); ++index) {
            EXPECT_EQ(elements[index].y() - bottomOf(elements[index - 1]), spacing) << index;
        }
    }

    /// Expects as much space above the first element as below the last.
    static void expectVerticallyCentred(const QRectF& container,
                                        const std::vector<QRect>& elements) {
        EXPECT_NEAR(elements.front().y() - container.top(),
                    container.bottom() - bottomOf(elements.back()), 1);
    }

    [[nodiscard]] QRect buttonRect(const QString& name) const { return rectOf(*button(name)); }

    void expectGardenButton(const QString& name) const {
        const QAbstractButton& found = *button(name);
        const QFontMetricsF metrics(found.font());
        EXPECT_NE(qobject_cast<const Garden::GardenButton*>(&found), nullptr);
        EXPECT_EQ(found.width(), std::ceil(metrics.horizontalAdvance(name)) + 2 * 30);
        EXPECT_EQ(found.height(), std::ceil(metrics.height()) + 2 * 13);
        Look::expectType(found, {Look::sans, 13, QFont::DemiBold});
    }
};

/// The start and the pause card.
class OverlayLook : public CardLook {};

class GameOverCardLook : public CardLook {
protected:
    [[nodiscard]] QRect fieldRect() const { return rectOf<NameField>(); }
    [[nodiscard]] QRect rowsRect() const { return rectOf<ScoreRows>(); }
};

class ScoreSheetLook : public CardLook {
protected:
    ScoreSheetLook() { openScores(); }

    [[nodiscard]] QRect sheetRect() const { return rectOf<HighScoresView>(); }

    template <typename T>
    [[nodiscard]] QRect rectInSheet() const {
        return rectOf(*child<HighScoresView>().findChild<T*>());
    }
};

INSTANTIATE_TEST_SUITE_P(Look, OverlayLook, windowSizes, sizeName);
INSTANTIATE_TEST_SUITE_P(Look, GameOverCardLook, windowSizes, sizeName);
INSTANTIATE_TEST_SUITE_P(Look, ScoreSheetLook, windowSizes, sizeName);

}  // namespace

TEST_P(OverlayLook, isCentredOnTheBoard) {
    const std::vector<QRect> column{
        rectOf(*child<Overlay>().findChild<Garden::IconView*>()), labelRect("Find your flow."),
        labelRect("Gather the fruit. Grow a little longer. Stay curious."),
        buttonRect("Let's grow"), labelRect("PRESS SPACE")};

    EXPECT_EQ(rectOf<Overlay>(), boardFrame().toAlignedRect());
    expectColumn(boardFrame().adjusted(25, 25, -25, -25), column);
    expectVerticallyCentred(boardFrame(), column);
}

TEST_P(OverlayLook, leaves26AboveTheCapitalsOfTheTitleAnd19BelowItsBaseline) {
    const QImage seen = picture();
    const QRectF symbol =
        Look::inkOf(mint, seen, rectOf(*child<Overlay>().findChild<Garden::IconView*>()));
    const QRect title = labelRect("Find your flow.");
    const QRect line = labelRect("Gather the fruit. Grow a little longer. Stay curious.");
    // Neither the F nor the G has a descender.
    const QRectF capital =
        Look::inkOf(Garden::primaryText, seen, QRect(title.x(), title.y(), 18, 50));
    const QRectF below = Look::inkOf(QColor::fromRgbF(0.56F, 0.57F, 0.56F), seen,
                                     QRect(line.x() - 1, line.y(), 11, line.height()));

    EXPECT_NEAR(capital.top() - symbol.bottom(), 26, 1);
    EXPECT_NEAR(below.top() - capital.bottom(), 19, 1);
}

TEST_P(OverlayLook, adds13AboveTheButtonAnd2AboveTheHint) {
    const QRect line = labelRect("Gather the fruit. Grow a little longer. Stay curious.");
    constexpr int spacing = 12;

    EXPECT_EQ(buttonRect("Let's grow").y() - bottomOf(line), spacing + 13);
    EXPECT_EQ(labelRect("PRESS SPACE").y() - bottomOf(buttonRect("Let's grow")), spacing + 2);
}

TEST_P(OverlayLook, hasItsFontsAndColours) {
    const auto& symbol = *child<Overlay>().findChild<Garden::IconView*>();
    EXPECT_EQ(symbol.size(), QSize(30, 30));
    EXPECT_EQ(symbol.colour(), mint);
    expectLabel("Find your flow.", {Look::serif, 35, QFont::Normal}, Garden::primaryText);
    expectLabel("Gather the fruit. Grow a little longer. Stay curious.",
                {Look::sans, 13, QFont::Normal}, Garden::withOpacity(Qt::white, 0.55));
    expectLabel("PRESS SPACE", {Look::sans, 8, QFont::Medium, 2.5}, muted);
}

TEST_P(OverlayLook, padsItsButtonBy25And15) {
    const QAbstractButton& overlayButton =
        *Screen::find<Garden::GardenButton>(window, "Let's grow");
    const QFontMetricsF metrics(overlayButton.font());

    Look::expectType(overlayButton, {Look::sans, 13, QFont::DemiBold});
    EXPECT_EQ(overlayButton.height(), std::ceil(metrics.height()) + 2 * 15);
    EXPECT_GT(overlayButton.width(), metrics.horizontalAdvance("Let's grow") + 2 * 25);
}

TEST_P(OverlayLook, showsALeafBeforeTheFirstRunAndAMoonWhilePaused) {
    const auto& symbol = *child<Overlay>().findChild<Garden::IconView*>();
    EXPECT_EQ(symbol.icon(), Garden::Icon::leaf);

    startAndPauseRun();

    EXPECT_EQ(symbol.icon(), Garden::Icon::moon);
}

TEST_P(GameOverCardLook, nameFormIsAColumn400WideSpacedBy14) {
    playToNameEntry();
    std::vector<QRect> column{
        labelRect("Game over."),
        labelRect(QStringLiteral("%1 POINTS  ·  Classic").arg(session.game().score())),
        labelRect("Leave your name in the garden."), fieldRect(),
        labelRect("Up to 24 characters · saved on this computer"), buttonRect("Save score"),
        // Its text: the padding around it is for the pointer.
        buttonRect("Skip saving").marginsRemoved({8, 3, 8, 3})};

    EXPECT_EQ(rectOf<GameOverView>(), boardFrame().toAlignedRect());
    EXPECT_EQ(fieldRect().size(), QSize(400, 50));
    expectColumn(boardFrame().adjusted(24, 24, -24, -24), column);
    expectSpacing(column, 14);
    column.back() = buttonRect("Skip saving");
    expectVerticallyCentred(boardFrame(), column);
}

TEST_P(GameOverCardLook, hasItsFontsAndColours) {
    playToNameEntry();

    expectLabel("Game over.", {Look::serif, 34, QFont::Normal}, Garden::primaryText);
    expectLabel(QStringLiteral("%1 POINTS  ·  Classic").arg(session.game().score()),
                {Look::sans, 11, QFont::Medium, 2}, mint);
    expectLabel("Leave your name in the garden.", {Look::sans, 14, QFont::Normal}, muted);
    expectLabel("Up to 24 characters · saved on this computer", {Look::sans, 10, QFont::Normal},
                muted);
    Look::expectType(child<NameField>(), {Look::sans, 18, QFont::Normal});
    Look::expectType(*Screen::find<Garden::QuietButton>(window, "Skip saving"),
                     {Look::sans, 12, QFont::Normal});
    expectGardenButton("Save score");
}

TEST_P(GameOverCardLook, padsTheNameBy14) {
    playToNameEntry();
    session.editName(QStringLiteral("HHH"));
    processEvents();
    window.setFocus();
    const auto& field = child<NameField>();
    const QImage seen = picture();

    int first = field.width();
    for (int x = field.width() / 2; x > 2; --x) {
        const QRectF column(fieldRect().x() + x, fieldRect().center().y() - 4, 1, 8);
        first = Look::nearestTo(Garden::primaryText, seen, column) < 100 ? x : first;
    }

    // The letter has a left bearing of its own.
    EXPECT_NEAR(first, 14 + field.fontMetrics().leftBearing(u'H'), 1);
}

TEST_P(GameOverCardLook, scoreListIs150High) {
    playAndSaveAs("Ada");
    const std::vector<QRect> column{
        labelRect("Game over."),
        labelRect(QStringLiteral("%1 POINTS  ·  Classic").arg(session.game().score())),
        labelRect("Score saved · Top 10"),
        rowsRect(),
        buttonRect("Play again"),
        labelRect("SPACE TO PLAY AGAIN")};

    EXPECT_EQ(rowsRect().size(), QSize(400, 150));
    expectColumn(boardFrame().adjusted(24, 24, -24, -24), column);
    expectSpacing(column, 14);
    expectVerticallyCentred(boardFrame(), column);
    expectLabel("Score saved · Top 10", {Look::sans, 12, QFont::Normal}, muted);
    expectLabel("SPACE TO PLAY AGAIN", {Look::sans, 9, QFont::Normal, 2}, muted);
    expectGardenButton("Play again");
}

TEST_P(ScoreSheetLook, is440WideAndCentredInTheWindow) {
    EXPECT_EQ(sheetRect().width(), 440);
    EXPECT_NEAR(QRectF(sheetRect()).center().x(), QRectF(window.rect()).center().x(), 0.5);
    EXPECT_NEAR(QRectF(sheetRect()).center().y(), QRectF(window.rect()).center().y(), 0.5);
    EXPECT_TRUE(window.rect().contains(sheetRect()));
}

TEST_P(ScoreSheetLook, isAColumnPaddedBy32AndSpacedBy20) {
    const std::vector<QRect> column{rectInSheet<Garden::IconView>(),
                                    labelRect("The high scores."),
                                    labelRect("Top 10 for each speed · saved on this computer"),
                                    rectInSheet<Garden::ChoiceGroup>(),
                                    rectInSheet<ScoreRows>(),
                                    buttonRect("Done")};

    EXPECT_EQ(column.front().y() - sheetRect().y(), 32);
    EXPECT_EQ(bottomOf(sheetRect()) - bottomOf(column.back()), 32);
    EXPECT_EQ(rectInSheet<ScoreRows>().size(), QSize(440 - 2 * 32, 330));
    expectColumn(sheetRect(), column);
    expectSpacing(column, 20);
}

TEST_P(ScoreSheetLook, hasItsFontsAndColours) {
    const auto& emblem = *child<HighScoresView>().findChild<Garden::IconView*>();
    EXPECT_EQ(emblem.icon(), Garden::Icon::trophy);
    EXPECT_EQ(emblem.size(), QSize(28, 28));
    EXPECT_EQ(emblem.colour(), mint);
    expectLabel("The high scores.", {Look::serif, 30, QFont::Normal}, Garden::primaryText);
    expectLabel("Top 10 for each speed · saved on this computer", {Look::sans, 12, QFont::Normal},
                muted);
    expectLabel("A fresh start. Be the first on the board.", {Look::sans, 13, QFont::Normal},
                muted);
    expectGardenButton("Done");
}
