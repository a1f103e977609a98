#include <QSignalSpy>

#include "Fernwick/Session/SessionTest.hpp"

namespace {

class ChangedSignal : public SessionTest {
protected:
    /// How many times `operation` emits `changed()`.
    template <typename Operation>
    int emissionsOf(Operation operation) {
        const QSignalSpy spy(&session, &Session::changed);
        operation();
        return static_cast<int>(spy.count());
    }
};

}  // namespace

TEST_F(ChangedSignal, isEmittedOnceByEachOperationThatChangesSomething) {
    EXPECT_EQ(emissionsOf([&] { session.choosePace(Pace::swift); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.start(); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.key(GameKey::up); }), 1);
    EXPECT_EQ(emissionsOf([&] { fireTimer(); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.pause(); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.pause(); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.openScores(); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.chooseScorePace(Pace::gentle); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.closeScores(); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.setSound(false); }), 1);
    startAndEndRun();
    EXPECT_EQ(emissionsOf([&] { session.editName("Ada"); }), 1);
    EXPECT_EQ(emissionsOf([&] { session.saveScore(); }), 1);
    startAndEndRun();
    EXPECT_EQ(emissionsOf([&] { session.skipSaving(); }), 1);
}

TEST_F(ChangedSignal, isNotEmittedByARefusedOperation) {
    EXPECT_EQ(emissionsOf([&] { session.pause(); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.key(GameKey::escape); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.saveScore(); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.skipSaving(); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.closeScores(); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.setSound(session.sound()); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.editName(session.playerName()); }), 0);
    startAndEndRun();
    EXPECT_EQ(emissionsOf([&] { session.start(); }), 0);
    EXPECT_EQ(emissionsOf([&] { session.saveScore(); }), 0);
    EXPECT_EQ(emissionsOf([&] { fireTimer(); }), 0);
}

TEST_F(ChangedSignal, isEmittedAfterAllGettersHaveTheirNewValues) {
    bool consistent = false;
    session.start();
    QObject::connect(&session, &Session::changed, &session, [&] {
        consistent = session.awaitingName() == session.game().ended() &&
                     session.best() >= session.game().score();
    });
    while (session.running()) {
        fireTimer();
        EXPECT_TRUE(consistent);
    }
}
