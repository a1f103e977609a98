#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/Layout.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/KeyCap.hpp"
#include "Screens/Help/AboutView.hpp"
#include "Screens/Help/KeysView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Support/Look.hpp"

namespace {

// The accessible name of the first row.
constexpr const char* moving = "Move: ↑ ↓ ← →, W A S D";

class HelpSheets : public WindowTest {
protected:
    void press(Qt::Key key) {
        Keyboard::press(window, key);
        processEvents();
    }

    void openAbout() {
        session.openSheet(Session::Sheet::about);
        processEvents();
    }

    template <typename Sheet>
    [[nodiscard]] bool isOpen() const {
        const auto* sheet = window.findChild<Sheet*>();
        return sheet != nullptr && sheet->isVisible();
    }
};

}  // namespace

TEST_F(HelpSheets, openByF1InFullScreenAndInTheWindow) {
    press(Qt::Key_F1);
    EXPECT_TRUE(isOpen<KeysView>());
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen<KeysView>());

    leaveFullScreen();
    press(Qt::Key_F1);
    EXPECT_TRUE(isOpen<KeysView>());
}

TEST_F(HelpSheets, pauseTheRunThatF1Interrupts) {
    startRun();

    press(Qt::Key_F1);
    EXPECT_EQ(session.phase(), Session::Phase::paused);
    press(Qt::Key_Space);
    press(Qt::Key_R);
    EXPECT_EQ(session.phase(), Session::Phase::paused);

    press(Qt::Key_Escape);
    EXPECT_EQ(session.phase(), Session::Phase::paused);
    press(Qt::Key_Space);
    EXPECT_TRUE(session.running());
}

TEST_F(HelpSheets, stayClosedWhenF1IsPressedInAMenu) {
    auto& bar = child<QMenuBar>();
    bar.show();
    bar.setActiveAction(bar.actions().constFirst());
    processEvents();
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);

    QTest::keyClick(menu, Qt::Key_F1);
    processEvents();

    EXPECT_EQ(session.sheet(), Session::Sheet::none);
}

TEST_F(HelpSheets, listEveryShortcutOfTheMenusAndHowToLeave) {
    press(Qt::Key_F1);
    const auto& sheet = child<KeysView>();

    for (const QAction* action : window.actions()) {
        for (const QKeySequence& keys : action->shortcuts()) {
            const QString name = keys.toString(QKeySequence::NativeText);
            EXPECT_TRUE(Screen::shows(sheet, name)) << name.toStdString();
        }
    }
    for (const char* text :
         {moving, "Menus: F10, Alt", "Quit: Ctrl + Q", "Start again: R, Ctrl + N", "↑", "→", "W",
          "D", "R", "Space", "Esc", "F10", "F11", "Alt", "Tab", "Return"}) {
        EXPECT_TRUE(Screen::shows(sheet, QString::fromUtf8(text))) << text;
    }
}

TEST_F(HelpSheets, keepTheArrowsInOrderFromRightToLeft) {
    window.setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_F1);
    const QList<Garden::KeyCap*> caps = child<KeysView>().findChildren<Garden::KeyCap*>();
    const auto* purpose = Screen::find<Garden::TrackedLabel>(window, QString::fromUtf8(moving));

    for (int index = 1; index < 8; ++index) {
        EXPECT_LT(rectOf(*caps[index - 1]).right(), rectOf(*caps[index]).left()) << index;
    }
    EXPECT_GT(rectOf(*purpose).left(), rectOf(*caps[7]).right());
}

TEST_F(HelpSheets, nameTheVersionAndTheLicences) {
    QApplication::setApplicationVersion(QStringLiteral("4.5.6"));
    openAbout();
    const auto& sheet = child<AboutView>();

    for (const char* text : {"Fernwick", "Fernwick: Version 4.5.6",
                             "Inter, Elstob, JetBrains Mono: SIL Open Font License 1.1",
                             "SIL Open Font License 1.1", "Qt: GNU LGPL 3", "GNU LGPL 3"}) {
        EXPECT_TRUE(Screen::shows(sheet, QString::fromUtf8(text))) << text;
    }
}

TEST_F(HelpSheets, areNamedModalDialogs) {
    press(Qt::Key_F1);
    openAbout();

    for (const auto& [sheet, name] :
         {std::pair<QWidget*, const char*>(&child<KeysView>(), "The keys."),
          std::pair<QWidget*, const char*>(&child<AboutView>(), "Fernwick")}) {
        const QAccessibleInterface& interface = *QAccessible::queryAccessibleInterface(sheet);
        EXPECT_EQ(interface.role(), QAccessible::Dialog);
        EXPECT_TRUE(interface.state().modal);
        EXPECT_EQ(interface.text(QAccessible::Name), name);
    }
}

TEST_F(HelpSheets, keepTheFocusInsideAndGiveItBack) {
    playToNameEntry();
    const auto& field = child<NameField>();
    ASSERT_TRUE(field.hasFocus());

    press(Qt::Key_F1);
    EXPECT_TRUE(child<KeysView>().hasFocus());
    for (int tab = 0; tab < 3; ++tab) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(child<KeysView>().isAncestorOf(window.focusWidget()));
    }
    press(Qt::Key_Return);

    EXPECT_FALSE(isOpen<KeysView>());
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(HelpSheets, takeThePlaceOfAnotherSheet) {
    openScores();

    press(Qt::Key_F1);
    EXPECT_FALSE(isOpen<HighScoresView>());
    EXPECT_TRUE(isOpen<KeysView>());
    waitForAnimations();
    const auto& sheet = child<KeysView>();
    Look::expectColour(Look::colourAt(grab(), sheet.mapTo(&window, QPoint(14, sheet.height() / 2))),
                       Garden::night, 0);

    press(Qt::Key_Escape);
    EXPECT_EQ(session.sheet(), Session::Sheet::none);
    EXPECT_FALSE(isOpen<HighScoresView>());
}
