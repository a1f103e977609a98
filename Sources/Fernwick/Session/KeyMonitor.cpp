#include "Session/KeyMonitor.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include "Session/KeyCode.hpp"
#include "Session/MainThread.hpp"
#include "Session/Session.hpp"

namespace {

// Presses with these held belong to the menus and the desktop. Shift, Caps Lock and the keypad
// flag are left out on purpose: a shifted W still turns the snake.
constexpr Qt::KeyboardModifiers commandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// An open menu runs by its own keys, as it does on every desktop.
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

KeyMonitor::KeyMonitor(Session& session) : session_(&session) {
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
    if (session_.isNull()) {
        return false;
    }
    // A key may come in the same turn as the change before it. What it reaches if it is passed on
    // must be the control that this change brings up.
    Q_EMIT session_->refreshDue();
    if ((event.modifiers() & commandModifiers) != 0 || menuIsOpen()) {
        return false;
    }
    return session_->key(physicalKey(event));
}
