#include <QAccessible>
#include <QStringList>

#include "Fernwick/Window/WindowTest.hpp"

// Qt sends accessibility events only on an AT-SPI bus, which CMakeLists.txt provides.

namespace {

/// Records the accessible name changes that Qt sends during the lifetime of the object.
class Announcements {
public:
    Announcements() {
        names_.clear();
        previous_ = QAccessible::installUpdateHandler(&record);
    }
    ~Announcements() { QAccessible::installUpdateHandler(previous_); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// How many times a visible widget changed its name to `name`.
    [[nodiscard]] qsizetype count(const QString& name) const { return names_.count(name); }

private:
    static void record(QAccessibleEvent* event) {
        auto* widget = qobject_cast<QWidget*>(event->object());
        if (event->type() == QAccessible::NameChanged && widget != nullptr && widget->isVisible()) {
            names_.append(event->accessibleInterface()->text(QAccessible::Name));
        }
    }

    static inline QStringList names_;
    QAccessible::UpdateHandler previous_ = nullptr;
};

class WindowAnnouncements : public WindowTest {
protected:
    WindowAnnouncements() {
        EXPECT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }));
    }

    void pauseOrResume() {
        session.pause();
        processEvents();
    }
};

const QString moving = QStringLiteral("IN THE FLOW");
const QString paused = QStringLiteral("TAKE A BREATH");
const QString ended = QStringLiteral("ANOTHER CHANCE TO GROW");
const QString saved = QStringLiteral("Score saved · Top 10");

}  // namespace

TEST_F(WindowAnnouncements, includeEachStartPauseAndResumeOnce) {
    const Announcements announcements;
    startRun();
    EXPECT_EQ(announcements.count(moving), 1);
    pauseOrResume();
    EXPECT_EQ(announcements.count(paused), 1);
    pauseOrResume();
    EXPECT_EQ(announcements.count(moving), 2);
    EXPECT_EQ(announcements.count(paused), 1);
}

TEST_F(WindowAnnouncements, includeTheEndOnce) {
    const Announcements announcements;
    playToNameEntry();

    EXPECT_EQ(announcements.count(ended), 1);
}

TEST_F(WindowAnnouncements, includeEverySaveOnce) {
    const Announcements announcements;
    for (int saves = 1; saves <= 3; ++saves) {
        startRun();
        playToNameEntry();
        EXPECT_EQ(announcements.count(saved), saves - 1);
        saveScoreAs("Ada");
        processEvents();
        EXPECT_EQ(announcements.count(saved), saves);
        EXPECT_EQ(announcements.count(ended), saves);
    }
}

TEST_F(WindowAnnouncements, doNotReportASkipAsASave) {
    playAndSaveAs("Ada");
    startRun();
    playToNameEntry();
    const Announcements announcements;
    playAndSkip();

    EXPECT_EQ(announcements.count(saved), 0);
    EXPECT_EQ(announcements.count("Top 10"), 1);
}

TEST_F(WindowAnnouncements, omitTheClosingCardWhenANewRunStarts) {
    playAndSaveAs("Ada");
    const Announcements announcements;
    startRun();

    EXPECT_EQ(announcements.count("Top 10"), 0);
    EXPECT_EQ(announcements.count(saved), 0);
    EXPECT_EQ(announcements.count(moving), 1);
}
