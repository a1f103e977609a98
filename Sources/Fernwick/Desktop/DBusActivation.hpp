#pragma once

#include <QByteArray>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QVariantMap>
#include <functional>

/// The game as the desktop knows it on the session bus, so that docks and launchers can bring it
/// forward: a name with the interface org.freedesktop.Application.
/// Without a bus, or where a game over other settings has the name, it does nothing.
class DBusActivation : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Called with what the desktop gave whoever asks the game to come forward; may be empty.
    using BringForward = std::function<void(const QByteArray& activationToken)>;

    /// Asks the bus for the name `applicationID` (dots between its parts) without waiting. The
    /// object stands on the bus for as long as `application`, which also owns this, lives.
    DBusActivation(QDBusConnection bus, const QString& applicationID, QObject* application,
                   BringForward bringForward);

public Q_SLOTS:
    // Named by the interface.
    void Activate(const QVariantMap& platformData);
    /// The game opens no files: it comes forward.
    void Open(const QStringList& files, const QVariantMap& platformData);
    /// The game announces no actions, so none is known.
    void ActivateAction(const QString& action, const QVariantList& parameter,
                        const QVariantMap& platformData);

private:
    BringForward bringForward_;
};
