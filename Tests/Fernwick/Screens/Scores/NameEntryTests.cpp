#include <QTest>

#include "Fernwick/Session/SessionTest.hpp"
#include "Screens/Scores/NameEntry.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

class NameEntryTest : public SessionTest {
protected:
    explicit NameEntryTest(const QString& lastName = QStringLiteral("Pip"))
        : entry(awaitingName(lastName)) {
        entry.show();
    }

    [[nodiscard]] NameField& field() { return *entry.findChild<NameField*>(); }

private:
    Session& awaitingName(const QString& lastName) {
        session.editName(lastName);
        startAndEndRun();
        return session;
    }

protected:
    NameEntry entry;
};

class OverlongLastName : public NameEntryTest {
protected:
    OverlongLastName() : NameEntryTest(QString(1'000'000, u'x')) {}
};

}  // namespace

TEST_F(NameEntryTest, offersTheLastNameSelected) {
    EXPECT_EQ(field().selectedText(), "Pip");
}

TEST_F(NameEntryTest, replacesTheOfferedNameByWhatIsTyped) {
    QTest::keyClicks(&field(), "Pip");

    EXPECT_EQ(session.playerName(), "Pip");
}

TEST_F(NameEntryTest, selectsTheOfferedNameAgainAfterTheNextRun) {
    QTest::keyClicks(&field(), "Ada");
    session.saveScore();
    entry.hide();

    startAndEndRun();
    entry.refresh();
    entry.show();

    EXPECT_EQ(field().selectedText(), "Ada");
}

TEST_F(NameEntryTest, keepsTheCursorWhenTheSessionChanges) {
    field().setCursorPosition(1);

    session.setSound(false);
    entry.refresh();

    EXPECT_EQ(field().cursorPosition(), 1);
    EXPECT_FALSE(field().hasSelectedText());
}

TEST_F(NameEntryTest, selectsNothingWhenTheWindowIsRestored) {
    QTest::keyClicks(&field(), "Ad");

    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);
    // Not sendEvent(), which clears that flag.
    qApp->notify(&entry, &restored);
    QTest::keyClicks(&field(), "a");

    EXPECT_EQ(session.playerName(), "Ada");
}

TEST_F(OverlongLastName, isOfferedCut) {
    EXPECT_EQ(field().text(), QString(24, u'x'));
    EXPECT_EQ(session.playerName(), field().text());
}

TEST_F(OverlongLastName, keepsTheCursorWhenTheSessionChanges) {
    field().setCursorPosition(1);

    session.setSound(false);
    entry.refresh();

    EXPECT_EQ(field().cursorPosition(), 1);
}
