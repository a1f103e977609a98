#pragma once

#include <QObject>

class QKeyEvent;
class Session;

/// Sees every key press of the application before the focused widget does, hands it to the session
/// and consumes it if the session used it. Presses with Ctrl, Alt or Meta held, and all presses
/// while a menu is open, pass. Works from construction to destruction.
class KeyMonitor : public QObject {
    Q_OBJECT

public:
    /// The session must outlive the monitor.
    explicit KeyMonitor(Session& session);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool handles(const QKeyEvent& event) const;

    Session& session_;
};
