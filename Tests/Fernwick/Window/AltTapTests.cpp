#include <QAbstractEventDispatcher>
#include <array>
#include <functional>
#include <vector>

#include "Fernwick/Window/MenuKeysTest.hpp"

namespace {

constexpr std::uint8_t xcbKeyPress = 2;
constexpr std::uint8_t xcbFocusOut = 10;
constexpr std::uint8_t scanCodeOfAlt = 64;
const QByteArray xEvent = "xcb_generic_event_t";

/// What happens between the press and the release of Alt, and whether Alt then activates the menu
/// bar.
class AltTaps : public MenuKeysTest {
protected:
    void down(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyPress(window.windowHandle(), key, held);
    }

    void up(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyRelease(window.windowHandle(), key, held);
        processEvents();
    }

    /// An event of a key that is held down; QTest has none.
    void repeat(QEvent::Type type, Qt::Key key) {
        QKeyEvent event(type, key, Qt::AltModifier, QString(), true);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    }

    /// A key press or release of Alt as it comes from the X server.
    void sendAlt(QEvent::Type type) {
        QKeyEvent event(type, Qt::Key_Alt, {}, scanCodeOfAlt, 0, 0);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
        processEvents();
    }

    static void receive(const QByteArray& eventType, std::uint8_t type, std::uint8_t detail = 0) {
        // The size of an event of the X protocol.
        std::array<std::uint8_t, 32> event{type, detail};
        qintptr result = 0;
        QAbstractEventDispatcher::instance()->filterNativeEvent(eventType, event.data(), &result);
    }

    void changeFocusWindow() {
        QWidget other;
        other.show();
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Whether the bar or a menu is active; leaves both.
    bool activatesBar() {
        const bool active = bar().activeAction() != nullptr;
        EXPECT_EQ(active, session.held());
        leaveMenus();
        return active;
    }

    bool altWith(const std::function<void()>& between) {
        down(Qt::Key_Alt);
        between();
        up(Qt::Key_Alt);
        return activatesBar();
    }
};

INSTANTIATE_TEST_SUITE_P(In, AltTaps, ::testing::Bool(), menuKeysName);

}  // namespace

TEST_P(AltTaps, activateTheBarEveryTime) {
    EXPECT_TRUE(altWith([] {}));
    EXPECT_TRUE(altWith([] {}));
}

TEST_P(AltTaps, closeAnOpenMenuWithoutActivatingTheBarAgain) {
    press(firstMenu);
    ASSERT_NE(openMenu(), nullptr);

    EXPECT_FALSE(altWith([] { processEvents(); }));
}

TEST_P(AltTaps, doNotCountWithAnotherModifier) {
    const std::vector<std::pair<Qt::Key, Qt::KeyboardModifier>> modifiers{
        {Qt::Key_Control, Qt::ControlModifier},
        {Qt::Key_Shift, Qt::ShiftModifier},
        {Qt::Key_Meta, Qt::MetaModifier},
    };
    for (const auto& [key, modifier] : modifiers) {
        SCOPED_TRACE(modifier);
        down(key);
        down(Qt::Key_Alt, modifier);
        up(Qt::Key_Alt, modifier);
        EXPECT_FALSE(activatesBar());
        up(key);

        down(key);
        down(Qt::Key_Alt, modifier);
        up(key, Qt::AltModifier);
        up(Qt::Key_Alt);
        EXPECT_FALSE(activatesBar());

        down(Qt::Key_Alt);
        down(key, Qt::AltModifier);
        up(key, Qt::AltModifier);
        up(Qt::Key_Alt);
        EXPECT_FALSE(activatesBar());

        down(Qt::Key_Alt);
        down(key, Qt::AltModifier);
        up(Qt::Key_Alt, modifier);
        up(key);
        EXPECT_FALSE(activatesBar());
    }
}

TEST_P(AltTaps, doNotCountWithAModifierThatWentDownInAnotherWindow) {
    down(Qt::Key_Alt, Qt::ControlModifier);
    up(Qt::Key_Alt);
    EXPECT_FALSE(activatesBar());

    down(Qt::Key_Alt);
    up(Qt::Key_Alt, Qt::ControlModifier);
    EXPECT_FALSE(activatesBar());
}

TEST_P(AltTaps, doNotCountWithAnotherKey) {
    EXPECT_FALSE(altWith([this] { press(Qt::Key_F5, Qt::AltModifier); }));

    down(Qt::Key_Return);
    EXPECT_FALSE(altWith([this] { up(Qt::Key_Return, Qt::AltModifier); }));
}

TEST_P(AltTaps, doNotCountWithAMouseButtonOrTheWheel) {
    const QPoint middle = window.rect().center();

    EXPECT_FALSE(altWith([&] {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::AltModifier, middle);
    }));
    EXPECT_FALSE(altWith([&] {
        QWheelEvent wheel(middle, window.mapToGlobal(middle), {}, QPoint(0, 120), Qt::NoButton,
                          Qt::AltModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window.windowHandle(), &wheel);
    }));
}

TEST_P(AltTaps, doNotCountIfTheFocusChanges) {
    EXPECT_FALSE(altWith([this] { changeFocusWindow(); }));
    EXPECT_FALSE(altWith([this] { button("Swift")->setFocus(); }));
}

TEST_P(AltTaps, doNotCountIfTheWindowManagerGrabsAKey) {
    constexpr std::uint8_t sentByAClient = 0x80;

    EXPECT_FALSE(altWith([&] { receive(xEvent, xcbFocusOut); }));
    EXPECT_FALSE(altWith([&] { receive(xEvent, sentByAClient | xcbFocusOut); }));
    EXPECT_TRUE(altWith([&] { receive(xEvent, xcbKeyPress); }));
    EXPECT_TRUE(altWith([&] { receive("another platform", xcbFocusOut); }));
}

TEST_P(AltTaps, doNotCountIfTheFocusIsLostBeforeQtDeliversThePress) {
    for (const bool grabbed : {true, false}) {
        receive(xEvent, xcbFocusOut);
        receive(xEvent, xcbKeyPress, scanCodeOfAlt);
        if (grabbed) {
            receive(xEvent, xcbFocusOut);
        }
        sendAlt(QEvent::ShortcutOverride);
        sendAlt(QEvent::KeyPress);
        sendAlt(QEvent::KeyRelease);

        EXPECT_EQ(activatesBar(), !grabbed);
    }
}

TEST_P(AltTaps, ignoreAutoRepeats) {
    EXPECT_TRUE(altWith([this] {
        repeat(QEvent::KeyRelease, Qt::Key_Alt);
        repeat(QEvent::KeyPress, Qt::Key_Alt);
        EXPECT_EQ(bar().activeAction(), nullptr);
    }));

    repeat(QEvent::KeyPress, Qt::Key_Alt);
    repeat(QEvent::KeyRelease, Qt::Key_Alt);
    repeat(QEvent::KeyPress, Qt::Key_Alt);
    up(Qt::Key_Alt);
    EXPECT_FALSE(activatesBar());
}
