#include <QAction>

#include "Fernwick/App/Languages/LanguageTest.hpp"
#include "Fernwick/Window/Layout.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Screens/Main/BoardArea.hpp"
#include "Screens/Main/Overlay.hpp"

namespace {

struct ParameterLanguage : ::testing::WithParamInterface<QString>, InstalledLanguage {
    ParameterLanguage() : InstalledLanguage(GetParam()) {}
};

/// The texts of every language have to fit into the smallest window.
class LanguageLayout : public ParameterLanguage, public LanguageTest {};

INSTANTIATE_TEST_SUITE_P(Languages, LanguageLayout, ::testing::ValuesIn(allLanguages()),
                         languageName);

}  // namespace

TEST_P(LanguageLayout, everythingFitsInEveryPhase) {
    inEveryPhase([this](Session::Phase) { Layout::expectWindowFits(window); });
}

TEST_P(LanguageLayout, theScoreTilesAreAligned) {
    const QList<Garden::RollingDigits*> tiles = window.findChildren<Garden::RollingDigits*>();

    ASSERT_EQ(tiles.size(), 2);
    EXPECT_EQ(rectOf(*tiles[0]).top(), rectOf(*tiles[1]).top());
}

TEST_P(LanguageLayout, theScoreSheetFitsWithAndWithoutScores) {
    Layout::expectScoreSheetFits(session, window);
    playAndSaveAs(QString(24, u'W'));
    Layout::expectScoreSheetFits(session, window);
}

TEST_P(LanguageLayout, theOverlayOfAnEndedRunFitsTheBoard) {
    session.start();
    eatFirstFruit();
    endRun();
    Overlay overlay(session);
    overlay.resize(child<BoardArea>().frame().size().toSize());
    overlay.show();
    processEvents();

    Layout::expectFits(overlay, {25, 25, 25, 25});
}

TEST_P(LanguageLayout, theHeadlineOfAWonRunFitsTheCard) {
    const Garden::TrackedLabel headline(QCoreApplication::translate("GameOverView", "Fully grown."),
                                        Garden::serif(34, QFont::Normal), Qt::white);
    EXPECT_LE(headline.sizeHint().width(), 400);
}

TEST_P(LanguageLayout, theNamePlaceholderFitsItsField) {
    playToNameEntry();
    const auto& field = child<NameField>();
    const int available = field.width() - 2 * 14;
    EXPECT_LE(field.fontMetrics().horizontalAdvance(field.placeholderText()), available);
}

TEST_P(LanguageLayout, everyCharacterHasAGlyph) {
    for (const Session::Phase phase : {Session::Phase::fresh, Session::Phase::awaitingName}) {
        enterPhase(phase);
        for (const auto* label : window.findChildren<Garden::TrackedLabel*>()) {
            EXPECT_TRUE(Look::hasEveryLetter(label->text(), label->font()))
                << label->text().toStdString();
        }
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            EXPECT_TRUE(Look::hasEveryLetter(button->text(), button->font()))
                << button->text().toStdString();
        }
        for (const auto* widget : window.findChildren<QWidget*>()) {
            EXPECT_TRUE(Look::hasEveryLetter(widget->toolTip(), Garden::sans(12, QFont::Normal)))
                << widget->toolTip().toStdString();
        }
        for (const auto* action : window.findChildren<QAction*>()) {
            EXPECT_TRUE(Look::hasEveryLetter(action->text(), Garden::sans(13, QFont::Normal)))
                << action->text().toStdString();
        }
    }
}
