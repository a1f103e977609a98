#pragma once

#include <QApplication>
#include <QList>
#include <QTest>
#include <QWindow>

#include "Support/Screen.hpp"

/// Operates a window with the keyboard.
namespace Keyboard {

/// Presses and releases a key; the focused widget receives it.
inline void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(window.windowHandle(), key, held);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

/// The controls that repeated presses of `key` (Tab or Backtab) reach from the current focus.
[[nodiscard]] inline QList<QWidget*> tabStops(QWidget& window, Qt::Key key = Qt::Key_Tab) {
    QList<QWidget*> stops;
    for (;;) {
        press(window, key);
        QWidget* stop = QApplication::focusWidget();
        if (stop == nullptr || stops.contains(stop)) {
            return stops;
        }
        stops.append(stop);
    }
}

[[nodiscard]] inline QStringList namesOf(const QList<QWidget*>& widgets) {
    QStringList names;
    for (QWidget* widget : widgets) {
        names.append(Screen::nameOf(widget));
    }
    return names;
}

/// Presses Tab until the control called `name` has the focus. Returns false if Tab does not reach
/// it.
inline bool tabTo(QWidget& window, const QString& name) {
    const qsizetype stops = tabStops(window).size();
    for (qsizetype step = 0; step < stops; ++step) {
        press(window, Qt::Key_Tab);
        if (Screen::nameOf(QApplication::focusWidget()) == name) {
            return true;
        }
    }
    return false;
}

}  // namespace Keyboard
