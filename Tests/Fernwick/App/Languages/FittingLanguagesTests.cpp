#include "Fernwick/App/Languages/LanguageTest.hpp"
#include "Fernwick/Window/Tidiness.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Screens/Main/BoardArea.hpp"
#include "Screens/Main/Overlay.hpp"

namespace {

struct SpeakerOfParameter : ::testing::WithParamInterface<QString>, Speaker {
    SpeakerOfParameter() : Speaker(GetParam()) {}
};

/// In the smallest window every language has to find its room.
class FittingLanguages : public SpeakerOfParameter, public LanguageTest {
protected:
    void expectTidyWindow() const { Tidiness::expectTidyWindow(window); }

    void expectTidySheet() {
        session.openScores();
        settle();
        Tidiness::expectTidySheet(window);
        session.closeScores();
        settle();
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, FittingLanguages, ::testing::ValuesIn(everyLanguage()),
                         nameOfLanguage);

}  // namespace

TEST_P(FittingLanguages, everythingFitsInEveryState) {
    for (const Session::Phase state : everyState) {
        SCOPED_TRACE(state);
        arriveAt(state);
        expectTidyWindow();
        if (state == Session::Phase::awaitingName) {
            session.skipSaving();
        }
    }
}

TEST_P(FittingLanguages, bothTilesStandOnOneLine) {
    const QList<Garden::RollingDigits*> tiles = window.findChildren<Garden::RollingDigits*>();

    ASSERT_EQ(tiles.size(), 2);
    EXPECT_EQ(placeOf(*tiles[0]).top(), placeOf(*tiles[1]).top());
}

TEST_P(FittingLanguages, theSheetFitsWithAndWithoutScores) {
    expectTidySheet();
    saveRunAs(QString(24, u'W'));
    expectTidySheet();
}

TEST_P(FittingLanguages, theOverlayOfAnEndedRunFitsTheBoard) {
    session.start();
    eatFirstFruit();
    endRun();
    Overlay overlay(session);
    overlay.resize(the<BoardArea>().frame().size().toSize());
    overlay.show();
    settle();

    Tidiness::expectTidy(overlay, {25, 25, 25, 25});
}

TEST_P(FittingLanguages, theHeadlineOfAWonRunFitsTheCard) {
    const Garden::TrackedLabel headline(QCoreApplication::translate("GameOverView", "Fully grown."),
                                        Garden::serif(34, QFont::Normal), Qt::white);
    EXPECT_LE(headline.sizeHint().width(), 400);
}

TEST_P(FittingLanguages, thePlaceholderOfTheNameFitsItsField) {
    endRunAwaitingName();
    const auto& field = the<NameField>();
    const int room = field.width() - 2 * 14;
    EXPECT_LE(field.fontMetrics().horizontalAdvance(field.placeholderText()), room);
}

TEST_P(FittingLanguages, everyLetterIsInAFontOfThisMachine) {
    for (const Session::Phase state : {Session::Phase::fresh, Session::Phase::awaitingName}) {
        arriveAt(state);
        for (const auto* label : window.findChildren<Garden::TrackedLabel*>()) {
            EXPECT_TRUE(Look::hasEveryLetter(label->text(), label->font()))
                << label->text().toStdString();
        }
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            EXPECT_TRUE(Look::hasEveryLetter(button->text(), button->font()))
                << button->text().toStdString();
        }
    }
}
