#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>
#include <vector>

#include "Fernwick/Session/SessionTest.hpp"
#include "Session/KeyMonitor.hpp"

namespace {

/// Stands in for the window with its focused widget and records the key presses it receives.
class FocusedWindow : public QWindow {
public:
    std::vector<int> received;

protected:
    void keyPressEvent(QKeyEvent* event) override { received.push_back(event->key()); }
};

// What Qt reports on X11 and Wayland: the kernel's evdev code plus 8.
constexpr quint32 scanCodeOfW = 25;
constexpr quint32 scanCodeOfD = 40;
constexpr quint32 scanCodeOfCapsLock = 66;
constexpr quint32 scanCodeOfReturn = 36;
constexpr quint32 scanCodeOfSpace = 65;
constexpr quint32 scanCodeOfR = 27;
constexpr quint32 keypadUp = 80;

constexpr quint32 nativeMod5 = 0x80;

class KeyMonitoring : public SessionTest {
protected:
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0,
               quint32 nativeModifiers = 0) {
        send({QEvent::KeyPress, key, modifiers, scanCode, 0, nativeModifiers});
    }

    void hold(int key, quint32 scanCode) { press(key, Qt::NoModifier, scanCode); }

    /// What Qt sends on X11 for each auto-repeat.
    void repeat(int key, quint32 scanCode) {
        const Qt::KeyboardModifiers none;
        send({QEvent::KeyRelease, key, none, scanCode, 0, 0, QString(), true});
        send({QEvent::KeyPress, key, none, scanCode, 0, 0, QString(), true});
    }

    void release(int key, quint32 scanCode) {
        send({QEvent::KeyRelease, key, Qt::NoModifier, scanCode, 0, 0});
    }

    void pressAt(quint64 time, int key, quint32 scanCode) {
        sendAt(time, {QEvent::KeyPress, key, Qt::NoModifier, scanCode, 0, 0});
    }

    void releaseAndPressAt(quint64 time, int key, quint32 scanCode) {
        sendAt(time, {QEvent::KeyRelease, key, Qt::NoModifier, scanCode, 0, 0});
        pressAt(time, key, scanCode);
    }

    FocusedWindow window;
    KeyMonitor monitor{session};

private:
    void send(QKeyEvent&& event) { QCoreApplication::sendEvent(&window, &event); }

    void sendAt(quint64 time, QKeyEvent&& event) {
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&window, &event);
    }
};

}  // namespace

TEST_F(KeyMonitoring, consumesGameKeys) {
    press(Qt::Key_Space);

    EXPECT_TRUE(session.running());
    EXPECT_TRUE(window.received.empty());
}

TEST_F(KeyMonitoring, passesOtherKeysToTheFocusedWidget) {
    press(Qt::Key_Return);

    EXPECT_EQ(window.received, std::vector<int>{Qt::Key_Return});
}

TEST_F(KeyMonitoring, passesKeysPressedWithCtrlAltOrMeta) {
    for (const Qt::KeyboardModifier held :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        window.received.clear();
        press(Qt::Key_Space, held);
        press(Qt::Key_R, held | Qt::ShiftModifier);

        EXPECT_EQ(window.received, (std::vector<int>{Qt::Key_Space, Qt::Key_R}));
        EXPECT_FALSE(session.started());
    }
}

TEST_F(KeyMonitoring, handlesKeysPressedWithShift) {
    session.start();

    press(Qt::Key_W, Qt::ShiftModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_F(KeyMonitoring, passesKeysPressedWithAltGr) {
    // X11, where AltGr need not be Mod5; Wayland, where Qt sets no flag.
    press(Qt::Key_Space, Qt::GroupSwitchModifier, scanCodeOfSpace);
    press(Qt::Key_R, Qt::NoModifier, scanCodeOfR, nativeMod5);

    EXPECT_EQ(window.received, (std::vector<int>{Qt::Key_Space, Qt::Key_R}));
    EXPECT_FALSE(session.started());
}

TEST_F(KeyMonitoring, handlesKeysPressedWithNumLockOn) {
    constexpr quint32 nativeNumLock = 0x10;

    press(Qt::Key_Space, Qt::NoModifier, scanCodeOfSpace, nativeNumLock);

    EXPECT_TRUE(session.running());
}

TEST_F(KeyMonitoring, handlesTheArrowsOfTheKeypad) {
    // The flag is set on X11 only.
    for (const Qt::KeyboardModifier flag : {Qt::KeypadModifier, Qt::NoModifier}) {
        session.start();

        press(Qt::Key_Up, flag, keypadUp);
        fireTimer();

        EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
        EXPECT_TRUE(window.received.empty());
    }
}

TEST_F(KeyMonitoring, passesTheDigitsOfTheKeypad) {
    session.start();

    press(Qt::Key_8, Qt::KeypadModifier, keypadUp);

    EXPECT_EQ(window.received, std::vector<int>{Qt::Key_8});
}

TEST_F(KeyMonitoring, pausesWithAnEscapeKeyInThePlaceOfCapsLock) {
    session.start();

    press(Qt::Key_Escape, Qt::NoModifier, scanCodeOfCapsLock);

    EXPECT_EQ(session.phase(), Session::Phase::paused);
}

TEST_F(KeyMonitoring, recognisesLettersByTheirPosition) {
    session.start();

    press(Qt::Key_Z, Qt::NoModifier, scanCodeOfW);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
    EXPECT_TRUE(window.received.empty());
}

TEST_F(KeyMonitoring, passesAGameLetterAtAnotherPosition) {
    press(Qt::Key_W, Qt::NoModifier, 52);

    EXPECT_EQ(window.received, std::vector<int>{Qt::Key_W});
}

TEST_F(KeyMonitoring, passesAllKeysWhileANameIsAwaited) {
    startAndEndRun();

    for (const int key : {Qt::Key_W, Qt::Key_Space, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }

    EXPECT_EQ(window.received.size(), 4U);
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(KeyMonitoring, passesAllKeysWhileAMenuIsInUse) {
    session.start();
    session.setHeld(true);

    for (const int key : {Qt::Key_Up, Qt::Key_Space, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }
    session.setHeld(false);
    fireTimer();

    EXPECT_EQ(window.received.size(), 4U);
    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::right);
}

TEST_F(KeyMonitoring, ignoresKeyReleases) {
    release(Qt::Key_Space, scanCodeOfSpace);

    EXPECT_FALSE(session.started());
}

TEST_F(KeyMonitoring, handlesAutoRepeatedPresses) {
    repeat(Qt::Key_Space, scanCodeOfSpace);

    EXPECT_TRUE(session.running());
}

TEST_F(KeyMonitoring, startsOneRunWhileSpaceOrRIsHeld) {
    for (const auto& [key, scanCode] :
         {std::pair{Qt::Key_Space, scanCodeOfSpace}, {Qt::Key_R, scanCodeOfR}}) {
        startAndEndRun();
        saveScoreAs("Ada");
        hold(key, scanCode);
        const SnakeCore::UUID run = session.runID();

        repeat(key, scanCode);
        EXPECT_EQ(session.phase(), Session::Phase::running);
        repeat(key, scanCode);
        EXPECT_EQ(session.phase(), Session::Phase::running);

        EXPECT_EQ(session.runID(), run);
        EXPECT_TRUE(window.received.empty());
        release(key, scanCode);
    }
}

TEST_F(KeyMonitoring, togglesThePauseWhileSpaceIsHeldDuringARun) {
    session.start();
    hold(Qt::Key_Space, scanCodeOfSpace);
    ASSERT_EQ(session.phase(), Session::Phase::paused);

    repeat(Qt::Key_Space, scanCodeOfSpace);
    EXPECT_EQ(session.phase(), Session::Phase::running);
    repeat(Qt::Key_Space, scanCodeOfSpace);
    EXPECT_EQ(session.phase(), Session::Phase::paused);
}

TEST_F(KeyMonitoring, discardsRepeatsOfAKeyThatWasHeldWhenTheRunEnded) {
    for (const auto& [key, scanCode] :
         {std::pair{Qt::Key_D, scanCodeOfD}, {Qt::Key_Return, scanCodeOfReturn}}) {
        session.start();
        hold(key, scanCode);
        endRun();
        window.received.clear();

        repeat(key, scanCode);
        repeat(key, scanCode);

        EXPECT_TRUE(window.received.empty());
        release(key, scanCode);
        session.skipSaving();
    }
}

TEST_F(KeyMonitoring, passesAKeyThatIsReleasedAndPressedAgainAfterTheRunHasEnded) {
    session.start();
    hold(Qt::Key_D, scanCodeOfD);
    endRun();
    repeat(Qt::Key_D, scanCodeOfD);
    release(Qt::Key_D, scanCodeOfD);

    hold(Qt::Key_D, scanCodeOfD);
    repeat(Qt::Key_D, scanCodeOfD);

    EXPECT_EQ(window.received, (std::vector<int>{Qt::Key_D, Qt::Key_D}));
}

TEST_F(KeyMonitoring, passesAKeyThatIsPressedAgainAfterItsReleaseWentToAnotherWindow) {
    session.start();
    hold(Qt::Key_D, scanCodeOfD);
    endRun();

    hold(Qt::Key_D, scanCodeOfD);
    repeat(Qt::Key_D, scanCodeOfD);

    EXPECT_EQ(window.received, (std::vector<int>{Qt::Key_D, Qt::Key_D}));
}

TEST_F(KeyMonitoring, passesOtherKeysWhileOneIsHeldSinceBeforeTheRunEnded) {
    session.start();
    hold(Qt::Key_D, scanCodeOfD);
    endRun();
    repeat(Qt::Key_D, scanCodeOfD);

    hold(Qt::Key_W, scanCodeOfW);
    repeat(Qt::Key_W, scanCodeOfW);

    EXPECT_EQ(window.received, (std::vector<int>{Qt::Key_W, Qt::Key_W}));
}

TEST_F(KeyMonitoring, discardsRepeatsOfAKeyThatChangesWithShift) {
    session.start();
    hold(Qt::Key_Less, scanCodeOfD);
    endRun();
    window.received.clear();

    repeat(Qt::Key_Greater, scanCodeOfD);

    EXPECT_TRUE(window.received.empty());
}

TEST_F(KeyMonitoring, tellsHeldKeysWithoutAScanCodeApart) {
    session.start();
    hold(Qt::Key_D, 0);
    endRun();

    repeat(Qt::Key_D, 0);
    hold(Qt::Key_E, 0);
    repeat(Qt::Key_E, 0);

    EXPECT_EQ(window.received, (std::vector<int>{Qt::Key_E, Qt::Key_E}));
}

TEST_F(KeyMonitoring, discardsRepeatsOfReturnAfterItHasSavedTheName) {
    startAndEndRun();
    hold(Qt::Key_Return, scanCodeOfReturn);
    saveScoreAs("Ada");

    repeat(Qt::Key_Return, scanCodeOfReturn);

    EXPECT_EQ(window.received, std::vector<int>{Qt::Key_Return});
}

TEST_F(KeyMonitoring, discardsRepeatsOfAKeyPressedInAnotherWindowWhileANameIsAwaited) {
    startAndEndRun();

    repeat(Qt::Key_Return, scanCodeOfReturn);
    repeat(Qt::Key_Return, scanCodeOfReturn);

    EXPECT_TRUE(window.received.empty());
}

TEST_F(KeyMonitoring, discardsARepeatThatQtTakesForAReleaseAndAPress) {
    session.start();
    pressAt(1000, Qt::Key_D, scanCodeOfD);
    endRun();

    releaseAndPressAt(1660, Qt::Key_D, scanCodeOfD);
    EXPECT_TRUE(window.received.empty());
    repeat(Qt::Key_D, scanCodeOfD);
    EXPECT_TRUE(window.received.empty());
    releaseAndPressAt(1700, Qt::Key_D, scanCodeOfD);
    EXPECT_TRUE(window.received.empty());
}

TEST_F(KeyMonitoring, handlesAPressInTheMillisecondOfTheRelease) {
    pressAt(1000, Qt::Key_R, scanCodeOfR);
    const SnakeCore::UUID run = session.runID();

    releaseAndPressAt(1001, Qt::Key_R, scanCodeOfR);

    EXPECT_NE(session.runID(), run);
}

TEST(GameKeyOfEvent, ofALetterIsFoundByTheScanCode) {
    const std::vector<std::pair<quint32, std::optional<GameKey>>> positions{
        {25, GameKey::up},      {38, GameKey::left}, {39, GameKey::down}, {40, GameKey::right},
        {27, GameKey::restart}, {10, std::nullopt},  {36, std::nullopt},  {61, std::nullopt},
    };
    for (const auto& [scanCode, key] : positions) {
        // Not the letter of any of these positions on a common layout, but one the game uses.
        const Qt::Key letter = key == GameKey::up ? Qt::Key_A : Qt::Key_W;
        EXPECT_EQ(gameKey({QEvent::KeyPress, letter, Qt::NoModifier, scanCode, 0, 0}), key)
            << scanCode;
    }
}

TEST(GameKeyOfEvent, ofAnArrowSpaceOrEscapeDoesNotDependOnTheScanCode) {
    const std::vector<std::pair<Qt::Key, GameKey>> keys{
        {Qt::Key_Up, GameKey::up},         {Qt::Key_Down, GameKey::down},
        {Qt::Key_Left, GameKey::left},     {Qt::Key_Right, GameKey::right},
        {Qt::Key_Space, GameKey::space},   {Qt::Key_nobreakspace, GameKey::space},
        {Qt::Key_Escape, GameKey::escape},
    };
    for (const auto& [key, meaning] : keys) {
        for (const quint32 scanCode : {0U, 8U, scanCodeOfR, scanCodeOfCapsLock, keypadUp, 255U}) {
            EXPECT_EQ(gameKey({QEvent::KeyPress, key, Qt::NoModifier, scanCode, 0, 0}), meaning)
                << key << " at " << scanCode;
        }
    }
}

TEST(GameKeyOfEvent, ignoresOtherKeysInThePlaceOfAnArrowSpaceOrEscape) {
    for (const quint32 scanCode : {9U, 65U, 111U, 113U, 114U, 116U}) {
        EXPECT_EQ(gameKey({QEvent::KeyPress, Qt::Key_Home, Qt::NoModifier, scanCode, 0, 0}),
                  std::nullopt)
            << scanCode;
    }
}

TEST(GameKeyOfEvent, ofALetterIsFoundByTheQtKeyIfTheScanCodeTellsNoPosition) {
    const std::vector<std::pair<Qt::Key, std::optional<GameKey>>> letters{
        {Qt::Key_W, GameKey::up},       {Qt::Key_S, GameKey::down},    {Qt::Key_A, GameKey::left},
        {Qt::Key_D, GameKey::right},    {Qt::Key_R, GameKey::restart}, {Qt::Key_Q, std::nullopt},
        {Qt::Key_Return, std::nullopt},
    };
    for (const auto& [letter, key] : letters) {
        for (const quint32 scanCode : {0U, 8U, 9U, 62U, 255U}) {
            EXPECT_EQ(gameKey({QEvent::KeyPress, letter, Qt::NoModifier, scanCode, 0, 0}), key)
                << letter << " at " << scanCode;
        }
    }
}
