#include "Desktop/KeyboardFocus.hpp"

#include <QGuiApplication>
#include <chrono>

namespace Desktop {

namespace {

// A window manager that handles a shortcut has the keyboard until the keys are released, and a tap
// takes about 0.1 s. On X11, Qt waits another 0.1 s before it reports that the application is not
// active. Some Wayland compositors take a moment to return the keyboard to the window after a menu
// has been closed.
constexpr std::chrono::milliseconds longestAbsence{200};

const QString shellInterface = QStringLiteral("org.gnome.Shell");

}  // namespace

KeyboardFocus::KeyboardFocus(QObject* parent) : QObject(parent) {
    away_.setSingleShot(true);
    away_.setInterval(longestAbsence);
    connect(&away_, &QTimer::timeout, this, &KeyboardFocus::lost);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive) {
                    away_.stop();
                } else {
                    away_.start();
                }
            });
}

// On Wayland, GNOME Shell 43 does not take the keyboard from the window when the overview opens,
// but with the next input event, unless the pointer was over a window.
void KeyboardFocus::followOverview(QDBusConnection bus) {
    // An empty service name matches any sender: with the shell's name, Qt would block on a call
    // that asks the bus for its owner.
    bus.connect(QString(), QStringLiteral("/org/gnome/Shell"),
                QStringLiteral("org.freedesktop.DBus.Properties"),
                QStringLiteral("PropertiesChanged"), {shellInterface}, QString(), this,
                SLOT(overviewChanged(QString, QVariantMap, QStringList)));
}

void KeyboardFocus::overviewChanged(const QString&, const QVariantMap& properties,
                                    const QStringList&) {
    if (properties.value(QStringLiteral("OverviewActive")).toBool()) {
        Q_EMIT lost();
    }
}

}  // namespace Desktop
