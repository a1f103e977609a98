#pragma once

#include <QObject>

#include "Session/HeldKeys.hpp"

class QKeyEvent;
class Session;

/// Sees every key press of the application before the focused widget does, hands it to the session
/// and consumes it if the session used it. Presses with Ctrl, Alt, AltGr or Meta held, and all
/// presses while a menu is in use, pass. Discards the auto-repeats of a key that was pressed before
/// the run started or ended, until that key is released. Works from construction to destruction.
class KeyMonitor : public QObject {
    Q_OBJECT

public:
    /// The session must outlive the monitor.
    explicit KeyMonitor(Session& session);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isOutdated(const QKeyEvent& event);
    [[nodiscard]] bool handles(const QKeyEvent& event) const;

    Session& session_;
    HeldKeys heldKeys_;
};
