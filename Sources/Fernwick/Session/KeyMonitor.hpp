#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class Session;

/// Sees every key press of the application before the focused control does and swallows those
/// that the session handles. Installed from construction to destruction.
class KeyMonitor : public QObject {
    Q_OBJECT

public:
    explicit KeyMonitor(Session& session);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool handles(const QKeyEvent& event) const;

    QPointer<Session> session_;
};
