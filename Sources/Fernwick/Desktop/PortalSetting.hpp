#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariant>

namespace Desktop {

/// A setting from the XDG settings portal (org.freedesktop.portal.Settings). It is read
/// asynchronously, which never starts the portal.
class PortalSetting : public QObject {
    Q_OBJECT

public:
    /// `group` is the portal's "namespace" argument.
    PortalSetting(const QDBusConnection& bus, const char* group, const char* key,
                  QObject* parent = nullptr);

Q_SIGNALS:
    /// The portal has told the value for the first time, or a new one. It can be of any type. Never
    /// emitted without a portal, or if the portal does not know the setting.
    void told(const QVariant& value);

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void read();

    QDBusConnection bus_;
    QString group_;
    QString key_;
    // A change signal may overtake the reply to an earlier read, which is then out of date.
    bool signalled_ = false;
};

}  // namespace Desktop
