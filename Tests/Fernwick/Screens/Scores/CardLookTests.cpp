#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/OverlayButton.hpp"
#include "Garden/Widgets/PlainButton.hpp"
#include "Screens/Main/Overlay.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRows.hpp"

// The cards over the board and the sheet over the window, laid out in the real window.

namespace {

using Garden::mint;
using Garden::muted;
using Look::bottomOf;

class CardLook : public LookTest {
protected:
    /// Expects `elements` one below the other, each centred in `container`.
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

    /// Expects as much room above the first element as below the last.
    static void expectInTheMiddle(const QRectF& container, const std::vector<QRect>& elements) {
        EXPECT_NEAR(elements.front().y() - container.top(),
                    container.bottom() - bottomOf(elements.back()), 1);
    }

    [[nodiscard]] QRect place(const QString& text) const { return placeOf(label(text)); }

    [[nodiscard]] QRect buttonPlace(const QString& name) const { return placeOf(*button(name)); }

    void expectGardenButton(const QString& name) const {
        const QAbstractButton& found = *button(name);
        const QFontMetricsF metrics(found.font());
        EXPECT_NE(qobject_cast<const Garden::GardenButton*>(&found), nullptr);
        EXPECT_EQ(found.width(), std::ceil(metrics.horizontalAdvance(name)) + 2 * 30);
        EXPECT_EQ(found.height(), std::ceil(metrics.height()) + 2 * 13);
        Look::expectType(found, {Look::sans, 13, QFont::DemiBold});
    }
};

/// The start and pause card.
class OverlayLook : public CardLook {};

class GameOverCardLook : public CardLook {
protected:
    [[nodiscard]] QRect fieldPlace() const { return placeOf(the<NameField>()); }
    [[nodiscard]] QRect rows() const { return placeOf(the<ScoreRows>()); }
};

class SheetLook : public CardLook {
protected:
    SheetLook() {
        session.openScores();
        settle();
    }

    [[nodiscard]] QRect sheet() const { return placeOf(the<HighScoresView>()); }

    template <typename T>
    [[nodiscard]] QRect inSheet() const {
        return placeOf(*the<HighScoresView>().findChild<T*>());
    }
};

INSTANTIATE_TEST_SUITE_P(Look, OverlayLook, bothSizes, nameOfSize);
INSTANTIATE_TEST_SUITE_P(Look, GameOverCardLook, bothSizes, nameOfSize);
INSTANTIATE_TEST_SUITE_P(Look, SheetLook, bothSizes, nameOfSize);

}  // namespace

TEST_P(OverlayLook, standsInTheMiddleOfTheBoard) {
    const std::vector<QRect> column{placeOf(*the<Overlay>().findChild<Garden::IconView*>()),
                                    place("Find your flow."),
                                    place("Gather the fruit. Grow a little longer. Stay curious."),
                                    buttonPlace("Let's grow"), place("PRESS SPACE")};

    EXPECT_EQ(placeOf(the<Overlay>()), boardFrame().toAlignedRect());
    expectColumn(boardFrame().adjusted(25, 25, -25, -25), column);
    expectInTheMiddle(boardFrame(), column);
}

TEST_P(OverlayLook, givesTheButton13AndTheHint2MoreRoomAbove) {
    const QRect symbol = placeOf(*the<Overlay>().findChild<Garden::IconView*>());
    const QRect title = place("Find your flow.");
    const QRect line = place("Gather the fruit. Grow a little longer. Stay curious.");
    const int spacing = title.y() - bottomOf(symbol);

    EXPECT_EQ(line.y() - bottomOf(title), spacing);
    EXPECT_EQ(buttonPlace("Let's grow").y() - bottomOf(line), spacing + 13);
    EXPECT_EQ(place("PRESS SPACE").y() - bottomOf(buttonPlace("Let's grow")), spacing + 2);
}

TEST_P(OverlayLook, setsItsTexts) {
    const auto& symbol = *the<Overlay>().findChild<Garden::IconView*>();
    EXPECT_EQ(symbol.size(), QSize(30, 30));
    EXPECT_EQ(symbol.colour(), mint);
    expectLabel("Find your flow.", {Look::serif, 35, QFont::Normal}, Garden::primaryText);
    expectLabel("Gather the fruit. Grow a little longer. Stay curious.",
                {Look::sans, 13, QFont::Normal}, Garden::withOpacity(Qt::white, 0.55));
    expectLabel("PRESS SPACE", {Look::sans, 8, QFont::Medium, 2.5}, muted);
}

TEST_P(OverlayLook, padsItsButtonBy25And15AroundATextAndAnArrow) {
    const QAbstractButton& way = the<Garden::OverlayButton>();
    const QFontMetricsF metrics(way.font());

    Look::expectType(way, {Look::sans, 13, QFont::DemiBold});
    EXPECT_EQ(way.height(), std::ceil(metrics.height()) + 2 * 15);
    EXPECT_GT(way.width(), metrics.horizontalAdvance("Let's grow") + 2 * 25);
}

TEST_P(OverlayLook, showsALeafBeforeTheFirstRunAndAMoonInAPause) {
    const auto& symbol = *the<Overlay>().findChild<Garden::IconView*>();
    EXPECT_EQ(symbol.icon(), Garden::Icon::leaf);

    pauseRun();

    EXPECT_EQ(symbol.icon(), Garden::Icon::moon);
}

TEST_P(GameOverCardLook, asksForANameInAColumnOf400With14Between) {
    endRunAwaitingName();
    const std::vector<QRect> column{
        place("Game over."),
        place(QStringLiteral("%1 POINTS  ·  Classic").arg(session.game().score())),
        place("Leave your name in the garden."),
        fieldPlace(),
        place("Up to 24 characters · saved on this Mac"),
        buttonPlace("Save score"),
        buttonPlace("Skip saving")};

    EXPECT_EQ(placeOf(the<GameOverView>()), boardFrame().toAlignedRect());
    EXPECT_EQ(fieldPlace().width(), 400);
    expectColumn(boardFrame().adjusted(24, 24, -24, -24), column);
    expectSpacing(column, 14);
    expectInTheMiddle(boardFrame(), column);
}

TEST_P(GameOverCardLook, setsItsTexts) {
    endRunAwaitingName();

    expectLabel("Game over.", {Look::serif, 34, QFont::Normal}, Garden::primaryText);
    expectLabel(QStringLiteral("%1 POINTS  ·  Classic").arg(session.game().score()),
                {Look::sans, 11, QFont::Medium, 2}, mint);
    expectLabel("Leave your name in the garden.", {Look::sans, 14, QFont::Normal}, muted);
    expectLabel("Up to 24 characters · saved on this Mac", {Look::sans, 10, QFont::Normal}, muted);
    Look::expectType(the<NameField>(), {Look::sans, 18, QFont::Normal});
    Look::expectType(*Screen::find<Garden::PlainButton>(window, "Skip saving"),
                     {Look::sans, 12, QFont::Normal});
    expectGardenButton("Save score");
}

TEST_P(GameOverCardLook, padsTheNameBy14) {
    endRunAwaitingName();
    session.editName(QStringLiteral("HHH"));
    settle();
    window.setFocus();
    const auto& field = the<NameField>();
    const QImage seen = picture();

    int first = field.width();
    for (int x = field.width() / 2; x > 2; --x) {
        const QRectF column(fieldPlace().x() + x, fieldPlace().center().y() - 4, 1, 8);
        first = Look::nearestTo(Garden::primaryText, seen, column) < 100 ? x : first;
    }

    EXPECT_EQ(field.height(), field.fontMetrics().height() + 2 * 14);
    // The letter's own bearing comes after the padding.
    EXPECT_NEAR(first, 14 + field.fontMetrics().leftBearing(u'H'), 1);
}

TEST_P(GameOverCardLook, showsTheSavedRunOnABoardOf150) {
    saveRunAs("Ada");
    const std::vector<QRect> column{
        place("Game over."),
        place(QStringLiteral("%1 POINTS  ·  Classic").arg(session.game().score())),
        place("Score saved · Top 10"),
        rows(),
        buttonPlace("Play again"),
        place("SPACE TO PLAY AGAIN")};

    EXPECT_EQ(rows().size(), QSize(400, 150));
    expectColumn(boardFrame().adjusted(24, 24, -24, -24), column);
    expectSpacing(column, 14);
    expectInTheMiddle(boardFrame(), column);
    expectLabel("Score saved · Top 10", {Look::sans, 12, QFont::Normal}, muted);
    expectLabel("SPACE TO PLAY AGAIN", {Look::sans, 9, QFont::Normal, 2}, muted);
    expectGardenButton("Play again");
}

TEST_P(SheetLook, is440WideInTheMiddleOfTheWindow) {
    EXPECT_EQ(sheet().width(), 440);
    EXPECT_NEAR(QRectF(sheet()).center().x(), QRectF(window.rect()).center().x(), 0.5);
    EXPECT_NEAR(QRectF(sheet()).center().y(), QRectF(window.rect()).center().y(), 0.5);
    EXPECT_TRUE(window.rect().contains(sheet()));
}

TEST_P(SheetLook, isAColumnPaddedBy32With20Between) {
    const std::vector<QRect> column{inSheet<Garden::IconView>(),
                                    place("The high scores."),
                                    place("Top 10 for each speed · saved on this Mac"),
                                    inSheet<Garden::ChoiceGroup>(),
                                    inSheet<ScoreRows>(),
                                    buttonPlace("Done")};

    EXPECT_EQ(column.front().y() - sheet().y(), 32);
    EXPECT_EQ(bottomOf(sheet()) - bottomOf(column.back()), 32);
    EXPECT_EQ(inSheet<ScoreRows>().size(), QSize(440 - 2 * 32, 330));
    expectColumn(sheet(), column);
    expectSpacing(column, 20);
}

TEST_P(SheetLook, setsItsTexts) {
    const auto& emblem = *the<HighScoresView>().findChild<Garden::IconView*>();
    EXPECT_EQ(emblem.icon(), Garden::Icon::trophy);
    EXPECT_EQ(emblem.size(), QSize(28, 28));
    EXPECT_EQ(emblem.colour(), mint);
    expectLabel("The high scores.", {Look::serif, 30, QFont::Normal}, Garden::primaryText);
    expectLabel("Top 10 for each speed · saved on this Mac", {Look::sans, 12, QFont::Normal},
                muted);
    expectLabel("A fresh start. Be the first on the board.", {Look::sans, 13, QFont::Normal},
                muted);
    expectGardenButton("Done");
}
