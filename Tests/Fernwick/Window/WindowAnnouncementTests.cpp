#include <QAccessible>
#include <QStringList>

#include "Fernwick/Window/WindowTest.hpp"

// The toolkit keeps silent without a real accessibility bus: these tests bring one along.

namespace {

/// What assistive tools are told while this lives.
class Announcements {
public:
    Announcements() {
        heard_.clear();
        previous_ = QAccessible::installUpdateHandler(&hear);
    }
    ~Announcements() { QAccessible::installUpdateHandler(previous_); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// How often something to be seen changed its name to `name`.
    [[nodiscard]] qsizetype timesNamed(const QString& name) const { return heard_.count(name); }

private:
    static void hear(QAccessibleEvent* event) {
        auto* widget = qobject_cast<QWidget*>(event->object());
        if (event->type() == QAccessible::NameChanged && widget != nullptr && widget->isVisible()) {
            heard_.append(event->accessibleInterface()->text(QAccessible::Name));
        }
    }

    static inline QStringList heard_;
    QAccessible::UpdateHandler previous_ = nullptr;
};

class WindowAnnouncements : public WindowTest {
protected:
    WindowAnnouncements() {
        EXPECT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }));
    }

    void save() {
        session.editName(QStringLiteral("Ada"));
        session.saveScore();
        settle();
    }

    void pauseOrResume() {
        session.pause();
        settle();
    }
};

const QString moving = QStringLiteral("IN THE FLOW");
const QString paused = QStringLiteral("TAKE A BREATH");
const QString ended = QStringLiteral("ANOTHER CHANCE TO GROW");
const QString saved = QStringLiteral("Score saved · Top 10");

}  // namespace

TEST_F(WindowAnnouncements, startingPausingAndGoingOnAreToldOnceEach) {
    const Announcements told;
    startRun();
    EXPECT_EQ(told.timesNamed(moving), 1);
    pauseOrResume();
    EXPECT_EQ(told.timesNamed(paused), 1);
    pauseOrResume();
    EXPECT_EQ(told.timesNamed(moving), 2);
    EXPECT_EQ(told.timesNamed(paused), 1);
}

TEST_F(WindowAnnouncements, theEndIsToldOnce) {
    const Announcements told;
    endRunAwaitingName();

    EXPECT_EQ(told.timesNamed(ended), 1);
}

TEST_F(WindowAnnouncements, everySaveIsToldOnce) {
    const Announcements told;
    for (int saves = 1; saves <= 3; ++saves) {
        startRun();
        endRunAwaitingName();
        EXPECT_EQ(told.timesNamed(saved), saves - 1);
        save();
        EXPECT_EQ(told.timesNamed(saved), saves);
        EXPECT_EQ(told.timesNamed(ended), saves);
    }
}

TEST_F(WindowAnnouncements, aSkipIsNotToldAsASave) {
    saveRunAs("Ada");
    startRun();
    endRunAwaitingName();
    const Announcements told;
    skipRun();

    EXPECT_EQ(told.timesNamed(saved), 0);
    EXPECT_EQ(told.timesNamed("Top 10"), 1);
}

TEST_F(WindowAnnouncements, aNewRunTellsNothingOfTheCardThatGoes) {
    saveRunAs("Ada");
    const Announcements told;
    startRun();

    EXPECT_EQ(told.timesNamed("Top 10"), 0);
    EXPECT_EQ(told.timesNamed(saved), 0);
    EXPECT_EQ(told.timesNamed(moving), 1);
}
