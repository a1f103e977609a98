#pragma once

#include <QApplication>
#include <QList>
#include <QTest>
#include <QWindow>

#include "Support/Screen.hpp"

/// Works a window as someone with nothing but a keyboard does.
namespace Keyboard {

/// Presses and releases a key the way a keyboard does: whatever has the focus gets it.
inline void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(window.windowHandle(), key, held);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

/// Every control that Tab (or Backtab) reaches from where the focus is, in order, each once.
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

/// Walks to the control that goes by `name`; tells whether Tab leads there.
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
