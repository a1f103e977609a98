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

    EXPECT_EQ(accessible(child<ScoreRows>()).role(), QAccessible::List);
    auto& row = accessible(child<ScoreRow>());
    EXPECT_EQ(row.role(), QAccessible::ListItem);
    EXPECT_EQ(row.text(QAccessible::Name), QStringLiteral("01 Ada %1").arg(session.game().score()));
}
