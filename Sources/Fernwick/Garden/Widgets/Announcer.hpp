#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>
#include <array>

namespace Garden {

/// Has a screen reader say `text`: screen readers read the control that has the focus, and not what
/// changes elsewhere. Texts of one turn of the event loop become one announcement. It waits until a
/// screen reader runs and the window of `view` is active; only the last announcement does.
void announce(QWidget& view, const QString& text);

/// Makes the announcements of a window, which owns it; an accessible status bar without a size. It
/// says a text by showing a widget with the role of a notification, which has that text as its
/// name: Qt has announcements only from 6.8 on, Orca from version 45 on. Inside a status bar, Orca
/// does not say the role.
class Announcer : public QWidget, public QAccessible::ActivationObserver {
    Q_OBJECT

public:
    explicit Announcer(QWidget& window);
    ~Announcer() override;

    void add(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void accessibilityActiveChanged(bool active) override;
    void sayLater();
    void say();

    // Added in this turn of the event loop, or waiting.
    QStringList texts_;
    bool isScheduled_ = false;
    // They take turns: Orca asks for the name some time after the widget is shown.
    std::array<QWidget*, 2> notifications_;
};

}  // namespace Garden
