#include <QMenu>
#include <QMenuBar>

#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Main/Board.hpp"
#include "Screens/Main/ControlRow.hpp"
#include "Screens/Main/HeaderRow.hpp"
#include "Screens/Main/HintRow.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

class LargerText : public WindowTest {
protected:
    LargerText() { leaveFullScreen(); }
    ~LargerText() override { Garden::TextScale::shared().setFactor(1); }
    Q_DISABLE_COPY_MOVE(LargerText)

    static void enlarge(double factor) {
        Garden::TextScale::shared().setFactor(factor);
        processEvents();
    }

    [[nodiscard]] int textSize(const char* text) const {
        return Screen::find<QWidget>(window, QString::fromLatin1(text))->font().pixelSize();
    }
};

}  // namespace

TEST_F(LargerText, enlargesTheRowsAndLeavesTheRestToTheBoard) {
    const QRect header = rectOf<HeaderRow>();
    const QRect controls = rectOf<ControlRow>();
    const QRect board = rectOf<Board>();

    enlarge(1.25);

    EXPECT_EQ(textSize("FERNWICK"), 18);
    EXPECT_EQ(textSize("Classic"), 15);
    EXPECT_EQ(textSize("or WASD to move"), 14);
    EXPECT_GT(rectOf<HeaderRow>().height(), 1.2 * header.height());
    EXPECT_GT(rectOf<ControlRow>().height(), 1.2 * controls.height());
    EXPECT_GE(rectOf<ControlRow>().top(), rectOf<HeaderRow>().bottom());
    EXPECT_LT(rectOf<Board>().height(), board.height());
    EXPECT_GT(rectOf<Board>().height(), 0.8 * board.height());
    EXPECT_LT(rectOf<Board>().bottom(), rectOf<HintRow>().top());
}

TEST_F(LargerText, enlargesTheCards) {
    const int title = textSize("Find your flow.");
    playToNameEntry();
    const QRect field = rectOf<NameField>();
    session.skipSaving();
    session.start();
    session.pause();

    enlarge(1.25);
    EXPECT_EQ(textSize("No rush."), qRound(1.25 * title));

    session.key(GameKey::escape);
    startAndEndRun();
    processEvents();
    EXPECT_GT(rectOf<NameField>().height(), 1.2 * field.height());
    EXPECT_GT(rectOf<NameField>().width(), 1.2 * field.width());
}

TEST_F(LargerText, enlargesAnOpenSheet) {
    openScores();
    const QRect sheet = rectOf<HighScoresView>();

    enlarge(1.25);

    EXPECT_EQ(rectOf<HighScoresView>().width(), qRound(1.25 * sheet.width()));
    EXPECT_EQ(textSize("Done"), 16);
    EXPECT_TRUE(window.rect().contains(rectOf<HighScoresView>()));
}

TEST_F(LargerText, enlargesTheMenus) {
    auto& bar = child<QMenuBar>();
    QMenu& menu = *bar.actions().constFirst()->menu();
    menu.ensurePolished();
    const QSize size = menu.sizeHint();

    EXPECT_EQ(bar.font().pixelSize(), 12);
    enlarge(1.25);
    EXPECT_EQ(bar.font().pixelSize(), 15);
    enlarge(1.5);

    EXPECT_EQ(bar.font().pixelSize(), 18);
    EXPECT_EQ(menu.font().pixelSize(), 20);
    EXPECT_GT(menu.sizeHint().width(), 1.2 * size.width());
    EXPECT_LE(bar.height(), 46);
}

TEST_F(LargerText, leavesEverythingAsItWasWhenItIsTurnedOffAgain) {
    playAndSaveAs(QStringLiteral("Pip"));
    openScores();
    waitForAnimations();
    const QImage before = grab();

    enlarge(1.5);
    EXPECT_FALSE(grab() == before);
    enlarge(1);

    EXPECT_TRUE(grab() == before);
}

TEST_F(LargerText, keepsARunGoing) {
    startRun();

    enlarge(1.5);

    EXPECT_TRUE(session.running());
}
