#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

namespace Desktop {

/// Notices when key presses no longer reach this program: another window has the focus, or the
/// desktop itself uses the keyboard, as in an overview or on a lock screen. Needs the
/// QGuiApplication.
class KeyboardFocus : public QObject {
    Q_OBJECT

public:
    explicit KeyboardFocus(QObject* parent = nullptr);

    /// Also follows the Activities overview of GNOME Shell, if it is on this bus.
    void followOverview(QDBusConnection bus);

Q_SIGNALS:
    /// Key presses go elsewhere. Not emitted if they come back within 0.2 seconds.
    void lost();

private:
    Q_SLOT void overviewChanged(const QString& interface, const QVariantMap& properties,
                                const QStringList& invalidated);

    // Runs while the application is not active, until `lost`.
    QTimer away_;
};

}  // namespace Desktop
