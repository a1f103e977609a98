#include <QCoreApplication>
#include <QKeyEvent>
#include <vector>

#include "Fernwick/Session/SessionTest.hpp"
#include "Session/KeyMonitor.hpp"

namespace {

/// The focused widget: records the key presses that reach it.
class FocusedWidget : public QObject {
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
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, scanCode, 0, 0);
        QCoreApplication::sendEvent(&control, &event);
    }

    FocusedWidget control;
    KeyMonitor monitor{session};
};

constexpr quint32 scanCodeOfW = 25;

}  // namespace

TEST_F(KeyPress, ofTheGameIsConsumed) {
    press(Qt::Key_Space);

    EXPECT_TRUE(session.running());
    EXPECT_TRUE(control.received.empty());
}

TEST_F(KeyPress, ofNoGameKeyReachesTheFocusedWidget) {
    press(Qt::Key_Return);

    EXPECT_EQ(control.received, std::vector<int>{Qt::Key_Return});
}

TEST_F(KeyPress, withCtrlAltOrMetaHeldReachesTheFocusedWidget) {
    for (const Qt::KeyboardModifier held :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        control.received.clear();
        press(Qt::Key_Space, held);
        press(Qt::Key_R, held | Qt::ShiftModifier);

        EXPECT_EQ(control.received, (std::vector<int>{Qt::Key_Space, Qt::Key_R}));
        EXPECT_FALSE(session.started());
    }
}

TEST_F(KeyPress, withShiftHeldStillTurnsTheSnake) {
    session.start();

    press(Qt::Key_W, Qt::ShiftModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_F(KeyPress, ofAnArrowWithTheKeypadModifierTurnsTheSnake) {
    session.start();

    press(Qt::Key_Up, Qt::KeypadModifier);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_F(KeyPress, countsByThePositionRatherThanTheLetter) {
    session.start();

    press(Qt::Key_Z, Qt::NoModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
    EXPECT_TRUE(control.received.empty());
}

TEST_F(KeyPress, ofAGameLetterAtAnotherPositionReachesTheFocusedWidget) {
    press(Qt::Key_W, Qt::NoModifier, 52);

    EXPECT_EQ(control.received, std::vector<int>{Qt::Key_W});
}

TEST_F(KeyPress, reachesTheFocusedWidgetWhileANameIsAwaited) {
    startAndEndRun();

    for (const int key : {Qt::Key_W, Qt::Key_Space, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }

    EXPECT_EQ(control.received.size(), 4U);
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(KeyPress, countsAndItsReleaseDoesNot) {
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &release);

    EXPECT_FALSE(session.started());
}

TEST_F(KeyPress, fromAutoRepeatCountsToo) {
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&control, &repeat);

    EXPECT_TRUE(session.running());
}

TEST(GameKeyOfAPress, isFoundByTheScanCode) {
    const std::vector<std::pair<quint32, std::optional<GameKey>>> positions{
        {111, GameKey::up},   {25, GameKey::up},    {116, GameKey::down},   {39, GameKey::down},
        {113, GameKey::left}, {38, GameKey::left},  {114, GameKey::right},  {40, GameKey::right},
        {65, GameKey::space}, {9, GameKey::escape}, {27, GameKey::restart}, {36, std::nullopt},
        {54, std::nullopt},
    };
    for (const auto& [scanCode, key] : positions) {
        const QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, scanCode, 0, 0);
        EXPECT_EQ(gameKey(event), key) << scanCode;
    }
}

TEST(GameKeyOfAPress, isFoundByTheLetterWithoutAScanCode) {
    const std::vector<std::pair<Qt::Key, std::optional<GameKey>>> letters{
        {Qt::Key_Up, GameKey::up},       {Qt::Key_W, GameKey::up},
        {Qt::Key_Down, GameKey::down},   {Qt::Key_S, GameKey::down},
        {Qt::Key_Left, GameKey::left},   {Qt::Key_A, GameKey::left},
        {Qt::Key_Right, GameKey::right}, {Qt::Key_D, GameKey::right},
        {Qt::Key_Space, GameKey::space}, {Qt::Key_Escape, GameKey::escape},
        {Qt::Key_R, GameKey::restart},   {Qt::Key_Q, std::nullopt},
        {Qt::Key_Return, std::nullopt},
    };
    for (const auto& [letter, key] : letters) {
        EXPECT_EQ(gameKey(QKeyEvent(QEvent::KeyPress, letter, Qt::NoModifier)), key) << letter;
    }
}
