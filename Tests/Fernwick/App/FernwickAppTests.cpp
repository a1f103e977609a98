#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QTest>

#include "App/FernwickApp.hpp"
#include "Fernwick/Session/SessionTest.hpp"

namespace {

// A run goes on if the keyboard comes back within this time, in milliseconds.
constexpr int longestAbsence = 200;

class Application : public ::testing::Test {
protected:
    static void changeState(Qt::ApplicationState state) {
        Q_EMIT qGuiApp->applicationStateChanged(state);
    }

    static void deactivate() {
        changeState(Qt::ApplicationInactive);
        QTest::qWait(2 * longestAbsence);
    }

    TemporaryFolder folder;
    Storage::PreferencesFile preferences{folder.path() / "preferences.cbor"};
    SoundRecorder sounds;
    FernwickApp fernwick{preferences, sounds};
    Session& session{fernwick.session()};
};

}  // namespace

TEST_F(Application, pausesWhenDeactivatedAndStaysPausedWhenReactivated) {
    for (const Qt::ApplicationState inactive :
         {Qt::ApplicationInactive, Qt::ApplicationHidden, Qt::ApplicationSuspended}) {
        session.start();

        changeState(inactive);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !session.running(); }));
        EXPECT_EQ(session.phase(), Session::Phase::paused);
        changeState(Qt::ApplicationActive);
        EXPECT_EQ(session.phase(), Session::Phase::paused);
    }
}

TEST_F(Application, staysInTheRunIfItIsReactivatedAtOnce) {
    session.start();

    changeState(Qt::ApplicationInactive);
    QTest::qWait(longestAbsence / 2);
    changeState(Qt::ApplicationActive);
    QTest::qWait(2 * longestAbsence);

    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(Application, changesNothingWhenDeactivatedOutsideARunningGame) {
    deactivate();
    EXPECT_EQ(session.phase(), Session::Phase::fresh);

    session.start();
    session.pause();
    deactivate();
    EXPECT_EQ(session.phase(), Session::Phase::paused);

    session.start();
    while (session.running()) {
        QMetaObject::invokeMethod(session.findChild<QTimer*>(), "timeout");
    }
    deactivate();
    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
}

TEST_F(Application, showsItsWindowAndHandlesKeys) {
    fernwick.show();
    QCoreApplication::processEvents();

    EXPECT_TRUE(fernwick.window().isVisible());
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&fernwick.window(), &space);
    EXPECT_TRUE(session.running());
}

TEST_F(Application, restoresItsMinimisedWindowWhenBroughtForward) {
    fernwick.show();
    fernwick.window().showMinimized();
    QCoreApplication::processEvents();
    ASSERT_TRUE(fernwick.window().isMinimized());

    fernwick.bringForward({});
    QCoreApplication::processEvents();

    EXPECT_FALSE(fernwick.window().isMinimized());
    EXPECT_TRUE(fernwick.window().isVisible());
}

TEST_F(Application, startsARunWithItsWindowInFrontWhenANewGameIsAskedFor) {
    fernwick.show();
    fernwick.window().showMinimized();
    QCoreApplication::processEvents();

    fernwick.startNewGame({});
    QCoreApplication::processEvents();

    EXPECT_FALSE(fernwick.window().isMinimized());
    EXPECT_TRUE(session.running());
}

TEST_F(Application, startsNoRunOverTheHighScoresWhenANewGameIsAskedFor) {
    fernwick.show();
    session.openScores();

    fernwick.startNewGame({});

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    EXPECT_TRUE(session.showingScores());
}
