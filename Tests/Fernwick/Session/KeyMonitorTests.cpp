#include <QCoreApplication>
#include <QKeyEvent>
#include <vector>

#include "Fernwick/Session/SessionTest.hpp"

namespace {

/// The focused control: what the monitor lets through.
class Control : public QObject {
public:
    std::vector<int> received;

    bool event(QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            received.push_back(static_cast<const QKeyEvent*>(event)->key());
            return true;
        }
        return QObject::event(event);
    }
};

class KeyPress : public SessionTest {
protected:
    KeyPress() { session.installKeys(); }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, scanCode, 0, 0);
        QCoreApplication::sendEvent(&control, &event);
    }

    Control control;
};

constexpr quint32 scanCodeOfW = 25;

}  // namespace

TEST_F(KeyPress, theGameKnowsIsSwallowed) {
    press(Qt::Key_Space);

    EXPECT_TRUE(session.running);
    EXPECT_TRUE(control.received.empty());
}

TEST_F(KeyPress, theGameDoesNotKnowPassesOn) {
    press(Qt::Key_Return);

    EXPECT_EQ(control.received, std::vector<int>{Qt::Key_Return});
}

TEST_F(KeyPress, withCtrlAltOrMetaHeldPassesOn) {
    for (const Qt::KeyboardModifier held :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        control.received.clear();
        press(Qt::Key_Space, held);
        press(Qt::Key_R, held | Qt::ShiftModifier);

        EXPECT_EQ(control.received, (std::vector<int>{Qt::Key_Space, Qt::Key_R}));
        EXPECT_FALSE(session.started);
    }
}

TEST_F(KeyPress, ofAShiftedLetterIsThePlainKey) {
    session.start();

    press(Qt::Key_W, Qt::ShiftModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game->direction(), SnakeCore::Direction::up);
}

TEST_F(KeyPress, ofAnArrowMarkedAsKeypadIsThePlainArrow) {
    session.start();

    press(Qt::Key_Up, Qt::KeypadModifier);
    fireTimer();

    EXPECT_EQ(session.game->direction(), SnakeCore::Direction::up);
}

TEST_F(KeyPress, goesByThePositionAndNotByTheLetter) {
    session.start();

    press(Qt::Key_Z, Qt::NoModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game->direction(), SnakeCore::Direction::up);
    EXPECT_TRUE(control.received.empty());
}

TEST_F(KeyPress, ofAKnownLetterAtAnotherPositionPassesOn) {
    press(Qt::Key_W, Qt::NoModifier, 52);

    EXPECT_EQ(control.received, std::vector<int>{Qt::Key_W});
}

TEST_F(KeyPress, passesOnWhileANameIsAwaited) {
    startAndEndRun();

    for (const int key : {Qt::Key_W, Qt::Key_Space, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }

    EXPECT_EQ(control.received.size(), 4U);
    EXPECT_TRUE(session.awaitingName);
}

TEST_F(KeyPress, isHandledOnceHoweverOftenTheMonitorIsInstalled) {
    session.installKeys();
    session.start();

    press(Qt::Key_Space);

    EXPECT_FALSE(session.running);
}

TEST_F(KeyPress, isAllThatCountsAndNotTheRelease) {
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &release);

    EXPECT_FALSE(session.started);
}

TEST_F(KeyPress, byAutoRepeatCountsToo) {
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&control, &repeat);

    EXPECT_TRUE(session.running);
}

TEST(PhysicalKey, isFoundForEveryPositionOfTheGame) {
    const std::vector<std::pair<quint32, std::uint16_t>> positions{
        {111, KeyCode::upArrow},    {116, KeyCode::downArrow}, {113, KeyCode::leftArrow},
        {114, KeyCode::rightArrow}, {25, KeyCode::w},          {38, KeyCode::a},
        {39, KeyCode::s},           {40, KeyCode::d},          {65, KeyCode::space},
        {9, KeyCode::escape},       {27, KeyCode::r},          {36, KeyCode::returnKey},
        {54, KeyCode::other},
    };
    for (const auto& [scanCode, code] : positions) {
        const QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, scanCode, 0, 0);
        EXPECT_EQ(physicalKey(event), code) << scanCode;
    }
}

TEST(PhysicalKey, ofAnEventWithoutAPositionFollowsTheLetter) {
    const std::vector<std::pair<Qt::Key, std::uint16_t>> letters{
        {Qt::Key_Up, KeyCode::upArrow},
        {Qt::Key_Down, KeyCode::downArrow},
        {Qt::Key_Left, KeyCode::leftArrow},
        {Qt::Key_Right, KeyCode::rightArrow},
        {Qt::Key_W, KeyCode::w},
        {Qt::Key_A, KeyCode::a},
        {Qt::Key_S, KeyCode::s},
        {Qt::Key_D, KeyCode::d},
        {Qt::Key_Space, KeyCode::space},
        {Qt::Key_Escape, KeyCode::escape},
        {Qt::Key_R, KeyCode::r},
        {Qt::Key_Q, KeyCode::other},
    };
    for (const auto& [letter, code] : letters) {
        EXPECT_EQ(physicalKey(QKeyEvent(QEvent::KeyPress, letter, Qt::NoModifier)), code) << letter;
    }
}
