#include "Session/KeyMonitor.hpp"

#include <QCoreApplication>
#include <QKeyEvent>

#include "Session/GameKey.hpp"
#include "Session/MainThread.hpp"
#include "Session/Session.hpp"

namespace {

// Shift, Caps Lock and the keypad flag are left out on purpose: Shift+W still turns the snake.
constexpr Qt::KeyboardModifiers commandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::GroupSwitchModifier;

// AltGr is GroupSwitchModifier on X11. On Wayland, Qt 6.4 has no flag for it, but passes on the
// compositor's modifiers, in which AltGr is Mod5 on every common layout.
constexpr quint32 mod5 = 1U << 7;

bool holdsCommandModifier(const QKeyEvent& event) {
    return (event.modifiers() & commandModifiers) != 0 || (event.nativeModifiers() & mod5) != 0;
}

}  // namespace

KeyMonitor::KeyMonitor(Session& session) : session_(session) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyMonitor::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (isPress || event->type() == QEvent::KeyRelease) {
        const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
        // A window gets each event first. Its widgets get the same one again, possibly after one of
        // them has handled it.
        if (watched->isWindowType() && isOutdated(keyEvent)) {
            return true;
        }
        if (isPress && handles(keyEvent)) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

bool KeyMonitor::isOutdated(const QKeyEvent& event) {
    if (event.type() == QEvent::KeyRelease) {
        heldKeys_.release(event);
        return false;
    }
    return heldKeys_.isOutdated(event, session_);
}

bool KeyMonitor::handles(const QKeyEvent& event) const {
    assertMainThread();
    if (holdsCommandModifier(event) || session_.held()) {
        return false;
    }
    const std::optional<GameKey> pressed = gameKey(event);
    return pressed && session_.key(*pressed);
}
