#include <QAccessible>
#include <QStringList>

#include "Fernwick/Window/WindowTest.hpp"
#include "Support/ClosedWalk.hpp"

// Qt sends accessibility events only on an AT-SPI bus, which CMakeLists.txt provides.

namespace {

/// Records the names of the notifications that are shown during the lifetime of the object.
class Announcements {
public:
    Announcements() {
        texts_.clear();
        previous_ = QAccessible::installUpdateHandler(&record);
    }
    ~Announcements() { QAccessible::installUpdateHandler(previous_); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// Those since the last call.
    [[nodiscard]] static QStringList taken() { return std::exchange(texts_, {}); }

private:
    static void record(QAccessibleEvent* event) {
        if (event->type() == QAccessible::ObjectShow &&
            event->accessibleInterface()->role() == QAccessible::Notification) {
            texts_.append(event->accessibleInterface()->text(QAccessible::Name));
        }
    }

    static inline QStringList texts_;
    QAccessible::UpdateHandler previous_ = nullptr;
};

class WindowAnnouncements : public WindowTest {
protected:
    WindowAnnouncements() {
        EXPECT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    [[nodiscard]] QString ended(const QString& pace) const {
        return QStringLiteral("Game over. %1 POINTS, %2. Leave your name in the garden.")
            .arg(session.game().score())
            .arg(pace);
    }

    Announcements announcements;
};

}  // namespace

TEST_F(WindowAnnouncements, includeEachStartAndResumeAndTheScoreAtEachPause) {
    startRun();
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList("IN THE FLOW."));

    session.pause();
    processEvents();
    EXPECT_EQ(announcements.taken(),
              QStringList(QStringLiteral("TAKE A BREATH. SCORE: %1.").arg(session.game().score())));

    session.pause();
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList("IN THE FLOW."));
}

TEST_F(WindowAnnouncements, includeARunThatIsStartedAnewOnce) {
    startRun();
    processEvents();
    static_cast<void>(announcements.taken());
    session.start();
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList("IN THE FLOW."));

    session.pause();
    processEvents();
    static_cast<void>(announcements.taken());
    session.start();
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList("IN THE FLOW."));
}

TEST_F(WindowAnnouncements, includeTheScoreOnlyAtEachHundredPoints) {
    session.start();
    processEvents();
    static_cast<void>(announcements.taken());
    while (session.running() && session.game().score() < 200) {
        session.key(static_cast<GameKey>(alongCycle(session.game())));
        fireTimer();
    }
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList("SCORE: 100. SCORE: 200."));
}

TEST_F(WindowAnnouncements, includeTheResultAndWhereItWasSavedOnce) {
    for (int saves = 1; saves <= 3; ++saves) {
        playToNameEntry();
        processEvents();
        EXPECT_EQ(announcements.taken(),
                  QStringList("IN THE FLOW. " + ended(QStringLiteral("Classic"))));

        saveScoreAs("Ada");
        processEvents();
        const QStringList afterwards = announcements.taken();
        ASSERT_EQ(afterwards.size(), 1);
        EXPECT_TRUE(afterwards.first().startsWith("Score saved, Top 10. 0"));
        EXPECT_TRUE(afterwards.first().endsWith(
            QStringLiteral(" Ada %1. SPACE TO PLAY AGAIN.").arg(session.game().score())));
    }
}

TEST_F(WindowAnnouncements, doNotReportASkipAsASave) {
    startRun();
    playToNameEntry();
    processEvents();
    static_cast<void>(announcements.taken());
    session.skipSaving();
    processEvents();

    EXPECT_EQ(announcements.taken(), QStringList("Top 10. SPACE TO PLAY AGAIN."));
}

TEST_F(WindowAnnouncements, includeTheChosenSpeed) {
    session.choosePace(Pace::swift);
    session.choosePace(Pace::swift);
    processEvents();

    EXPECT_EQ(announcements.taken(), QStringList("Swift."));
}

TEST_F(WindowAnnouncements, includeTheScoresOfEachSpeedInTheSheet) {
    playAndSaveAs("Ada");
    static_cast<void>(announcements.taken());
    session.openScores();
    processEvents();
    EXPECT_EQ(announcements.taken(),
              QStringList(QStringLiteral("Classic. 01 Ada %1.").arg(session.game().score())));

    session.chooseScorePace(Pace::swift);
    processEvents();
    EXPECT_EQ(announcements.taken(),
              QStringList("Swift. A fresh start. Be the first on the board."));

    session.closeScores();
    session.openScores();
    processEvents();
    EXPECT_EQ(announcements.taken().size(), 1);
}

TEST_F(WindowAnnouncements, waitUntilTheWindowIsActive) {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    static_cast<void>(announcements.taken());
    session.choosePace(Pace::gentle);
    processEvents();
    session.choosePace(Pace::swift);
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList());

    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    processEvents();
    EXPECT_EQ(announcements.taken(), QStringList("Swift."));
}
