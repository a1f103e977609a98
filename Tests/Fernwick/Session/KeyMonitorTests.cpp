#include <QCoreApplication>
#include <QKeyEvent>
#include <vector>

#include "Fernwick/Session/SessionTest.hpp"
#include "Session/KeyMonitor.hpp"

namespace {

/// Stands in for the focused widget and records the key presses it receives.
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

class KeyMonitoring : public SessionTest {
protected:
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, scanCode, 0, 0);
        QCoreApplication::sendEvent(&widget, &event);
    }

    FocusedWidget widget;
    KeyMonitor monitor{session};
};

constexpr quint32 scanCodeOfW = 25;

}  // namespace

TEST_F(KeyMonitoring, consumesGameKeys) {
    press(Qt::Key_Space);

    EXPECT_TRUE(session.running());
    EXPECT_TRUE(widget.received.empty());
}

TEST_F(KeyMonitoring, passesOtherKeysToTheFocusedWidget) {
    press(Qt::Key_Return);

    EXPECT_EQ(widget.received, std::vector<int>{Qt::Key_Return});
}

TEST_F(KeyMonitoring, passesKeysPressedWithCtrlAltOrMeta) {
    for (const Qt::KeyboardModifier held :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        widget.received.clear();
        press(Qt::Key_Space, held);
        press(Qt::Key_R, held | Qt::ShiftModifier);

        EXPECT_EQ(widget.received, (std::vector<int>{Qt::Key_Space, Qt::Key_R}));
        EXPECT_FALSE(session.started());
    }
}

TEST_F(KeyMonitoring, handlesKeysPressedWithShift) {
    session.start();

    press(Qt::Key_W, Qt::ShiftModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_F(KeyMonitoring, handlesArrowsWithTheKeypadModifier) {
    session.start();

    press(Qt::Key_Up, Qt::KeypadModifier);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_F(KeyMonitoring, recognisesLettersByTheirPosition) {
    session.start();

    press(Qt::Key_Z, Qt::NoModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
    EXPECT_TRUE(widget.received.empty());
}

TEST_F(KeyMonitoring, passesAGameLetterAtAnotherPosition) {
    press(Qt::Key_W, Qt::NoModifier, 52);

    EXPECT_EQ(widget.received, std::vector<int>{Qt::Key_W});
}

TEST_F(KeyMonitoring, passesAllKeysWhileANameIsAwaited) {
    startAndEndRun();

    for (const int key : {Qt::Key_W, Qt::Key_Space, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }

    EXPECT_EQ(widget.received.size(), 4U);
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(KeyMonitoring, ignoresKeyReleases) {
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &release);

    EXPECT_FALSE(session.started());
}

TEST_F(KeyMonitoring, handlesAutoRepeatedPresses) {
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&widget, &repeat);

    EXPECT_TRUE(session.running());
}

TEST(GameKeyOfEvent, isFoundByTheScanCode) {
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

TEST(GameKeyOfEvent, isFoundByTheQtKeyWithoutAScanCode) {
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
