#include <QApplication>
#include <QTimer>

#include "Fernwick/Window/ActivationTest.hpp"
#include "Garden/Widgets/IconButton.hpp"

namespace {

/// The buttons at the right of the title band.
class WindowButtons : public ActivationTest {
protected:
    WindowButtons() { leaveFullScreen(); }

    [[nodiscard]] Garden::IconButton* iconButton(const QString& name) const {
        return Screen::find<Garden::IconButton>(window, name);
    }

    [[nodiscard]] bool becomes(Qt::WindowState state, bool wanted) const {
        return QTest::qWaitFor(
            [this, state, wanted] { return window.windowState().testFlag(state) == wanted; });
    }
};

INSTANTIATE_TEST_SUITE_P(By, WindowButtons, allActivations, activationName);

const QStringList buttonNames{"Minimise", "Maximise", "Close"};

}  // namespace

TEST_P(WindowButtons, areHiddenInFullScreen) {
    for (const QString& name : buttonNames) {
        EXPECT_NE(iconButton(name), nullptr) << name.toStdString();
    }

    window.showFullScreen();
    waitForFullScreen(true);
    for (const QString& name : buttonNames) {
        EXPECT_EQ(iconButton(name), nullptr) << name.toStdString();
    }

    leaveFullScreen();
    for (const QString& name : buttonNames) {
        EXPECT_NE(iconButton(name), nullptr) << name.toStdString();
    }
}

TEST_P(WindowButtons, areOrderedAtTheRightOfTheTitleBand) {
    int right = 0;
    for (const QString& name : buttonNames) {
        const QRect buttonRect = rectOf(*iconButton(name));
        EXPECT_GT(buttonRect.left(), std::max(right, window.width() / 2));
        EXPECT_LT(buttonRect.bottom(), 46);
        right = buttonRect.right();
    }
    EXPECT_EQ(right + 1, window.width() - 38);
}

TEST_P(WindowButtons, minimiseTheWindow) {
    ASSERT_TRUE(activate("Minimise"));

    EXPECT_TRUE(becomes(Qt::WindowMinimized, true));
}

TEST_P(WindowButtons, maximiseAndRestoreTheWindow) {
    const QSize before = window.size();
    EXPECT_EQ(iconButton("Maximise")->icon(), Garden::Icon::windowMaximize);

    ASSERT_TRUE(activate("Maximise"));
    ASSERT_TRUE(becomes(Qt::WindowMaximized, true));
    EXPECT_EQ(iconButton("Maximise")->icon(), Garden::Icon::windowRestore);

    ASSERT_TRUE(activate("Maximise"));
    ASSERT_TRUE(becomes(Qt::WindowMaximized, false));
    EXPECT_EQ(iconButton("Maximise")->icon(), Garden::Icon::windowMaximize);
    EXPECT_TRUE(QTest::qWaitFor([this, before] { return window.size() == before; }));
}

TEST_P(WindowButtons, quitTheProgram) {
    QTimer::singleShot(0, &window, [this] { EXPECT_TRUE(activate("Close")); });
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });

    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_P(WindowButtons, workInEveryPhase) {
    inEveryPhase([this](Session::Phase phase) {
        ASSERT_TRUE(activate("Maximise"));
        EXPECT_TRUE(becomes(Qt::WindowMaximized, true));
        ASSERT_TRUE(activate("Maximise"));
        EXPECT_TRUE(becomes(Qt::WindowMaximized, false));
        EXPECT_EQ(session.phase(), phase);
    });
}
