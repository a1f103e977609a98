#include "Session/KeyMonitor.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include "Session/GameKey.hpp"
#include "Session/MainThread.hpp"
#include "Session/Session.hpp"

namespace {

// Shift, Caps Lock and the keypad flag are left out on purpose: Shift+W still turns the snake.
constexpr Qt::KeyboardModifiers commandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool menuIsOpen() {
    const QWindow* focus = QGuiApplication::focusWindow();
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window->type() == Qt::Popup) {
            return true;
        }
    }
    return focus != nullptr && focus->type() == Qt::Popup;
}

}  // namespace

KeyMonitor::KeyMonitor(Session& session) : session_(session) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyMonitor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && handles(static_cast<const QKeyEvent&>(*event))) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool KeyMonitor::handles(const QKeyEvent& event) const {
    assertMainThread();
    if ((event.modifiers() & commandModifiers) != 0 || menuIsOpen()) {
        return false;
    }
    const std::optional<GameKey> pressed = gameKey(event);
    return pressed && session_.key(*pressed);
}
