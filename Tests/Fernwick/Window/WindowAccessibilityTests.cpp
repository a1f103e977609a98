#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"

namespace {

class WindowAccessibility : public WindowTest {
protected:
    [[nodiscard]] static QAccessibleInterface& accessible(QObject& object) {
        return *QAccessible::queryAccessibleInterface(&object);
    }

    void openSheet() {
        session.openScores();
        settle();
    }
};

}  // namespace

TEST_F(WindowAccessibility, theSheetIsAModalDialogWithAName) {
    openSheet();
    auto& sheet = accessible(*window.findChild<HighScoresView*>());

    EXPECT_EQ(sheet.role(), QAccessible::Dialog);
    EXPECT_TRUE(sheet.state().modal);
    EXPECT_EQ(sheet.text(QAccessible::Name), "The high scores.");
    EXPECT_FALSE(sheet.state().invisible);

    session.closeScores();
    settle();
    EXPECT_TRUE(sheet.state().invisible);
}

TEST_F(WindowAccessibility, theFocusGoesIntoTheDialogAndBack) {
    endRunAwaitingName();
    openSheet();
    EXPECT_TRUE(accessible(*window.findChild<HighScoresView*>()).state().focused);

    session.closeScores();
    settle();
    EXPECT_TRUE(accessible(*window.findChild<NameField*>()).state().focused);
}

TEST_F(WindowAccessibility, theScoresAreAListOfRows) {
    saveRunAs("Ada");

    EXPECT_EQ(accessible(*window.findChild<ScoreRows*>()).role(), QAccessible::List);
    auto& row = accessible(*window.findChild<ScoreRow*>());
    EXPECT_EQ(row.role(), QAccessible::ListItem);
    EXPECT_EQ(row.text(QAccessible::Name), QStringLiteral("01 Ada %1").arg(session.game().score()));
}
