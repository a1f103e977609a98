#pragma once

#include <QByteArray>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QMap>
#include <QVariantMap>
#include <functional>

namespace Desktop {

/// Implements org.freedesktop.Application on the session bus, so that docks and launchers can
/// activate the running game. Does nothing without a session bus, or when another process owns the
/// name.
class DBusActivation : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Called on an activation; the token may be empty.
    using Activated = std::function<void(const QByteArray& activationToken)>;

    /// Exports `application`, which also becomes the parent, and requests the bus name
    /// `applicationID` (reverse domain name) without waiting for the reply. `actions` has those of
    /// the desktop entry, by their names there.
    DBusActivation(QDBusConnection bus, const QString& applicationID, QObject* application,
                   Activated activated, QMap<QString, Activated> actions = {});

public Q_SLOTS:
    // Named by the interface.
    void Activate(const QVariantMap& platformData);
    /// The game opens no files, so this only activates it.
    void Open(const QStringList& files, const QVariantMap& platformData);
    /// Does nothing if there is no such action. None of them takes a parameter.
    void ActivateAction(const QString& action, const QVariantList& parameter,
                        const QVariantMap& platformData);

private:
    Activated activated_;
    QMap<QString, Activated> actions_;
};

}  // namespace Desktop
