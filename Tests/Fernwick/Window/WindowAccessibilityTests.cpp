#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Widgets/ChoiceButton.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Screens/Main/HeaderRow.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRow.hpp"

namespace {

class WindowAccessibility : public WindowTest {
protected:
    [[nodiscard]] static QAccessibleInterface& accessible(QObject& object) {
        return *QAccessible::queryAccessibleInterface(&object);
    }
};

}  // namespace

TEST_F(WindowAccessibility, theScoreSheetIsANamedModalDialog) {
    openScores();
    auto& sheet = accessible(child<HighScoresView>());

    EXPECT_EQ(sheet.role(), QAccessible::Dialog);
    EXPECT_TRUE(sheet.state().modal);
    EXPECT_EQ(sheet.text(QAccessible::Name), "The high scores.");
    EXPECT_FALSE(sheet.state().invisible);

    session.closeScores();
    processEvents();
    EXPECT_TRUE(sheet.state().invisible);
}

TEST_F(WindowAccessibility, theFocusMovesIntoTheDialogAndBack) {
    playToNameEntry();
    openScores();
    EXPECT_TRUE(accessible(child<HighScoresView>()).state().focused);

    session.closeScores();
    processEvents();
    EXPECT_TRUE(accessible(child<NameField>()).state().focused);
}

TEST_F(WindowAccessibility, theScoresAreAListOfItems) {
    playAndSaveAs("Ada");

    auto& row = accessible(child<ScoreRow>());
    EXPECT_EQ(row.role(), QAccessible::ListItem);
    EXPECT_EQ(row.text(QAccessible::Name), QStringLiteral("01 Ada %1").arg(session.game().score()));
    QAccessibleInterface& list = *row.parent();
    EXPECT_EQ(list.role(), QAccessible::List);
    EXPECT_EQ(list.text(QAccessible::Name), "Scores");
    ASSERT_EQ(list.childCount(), 1);
    EXPECT_EQ(list.child(0), &row);
    EXPECT_EQ(list.indexOfChild(&row), 0);
}

TEST_F(WindowAccessibility, theScoreAndTheBestAreNamedOnceAfterTheTitle) {
    auto& header = accessible(child<HeaderRow>());
    QStringList names;
    for (int index = 0; index < header.childCount(); ++index) {
        names.append(header.child(index)->text(QAccessible::Name));
    }
    names.removeAll(QString());

    EXPECT_EQ(names,
              QStringList({"FERNWICK", "A little room to grow.", "SCORE: 0", "PERSONAL BEST: 0"}));
}

TEST_F(WindowAccessibility, theSoundSwitchIsACheckBoxThatIsNotDescribedByItsName) {
    for (auto* button : window.findChildren<Garden::IconButton*>()) {
        auto& interface = accessible(*button);
        EXPECT_EQ(interface.text(QAccessible::Description), QString());
        if (interface.text(QAccessible::Name) == "Toggle sound effects") {
            EXPECT_EQ(interface.role(), QAccessible::CheckBox);
            EXPECT_TRUE(interface.state().checked);
        }
    }
}

TEST_F(WindowAccessibility, theSpeedsTellWhichKeyChooses) {
    EXPECT_EQ(accessible(child<Garden::ChoiceButton>()).text(QAccessible::Description),
              "Press Return to choose.");
}
