#include "Garden/Look/Contrast.hpp"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <array>

#include "Desktop/Environment.hpp"
#include "Desktop/PortalSwitch.hpp"

namespace Garden {

namespace {

// The standard setting and GNOME's own.
constexpr std::array<Desktop::PortalSwitch::Setting, 2> settings{{
    {"org.freedesktop.appearance", "contrast",
     [](const QVariant& value) { return value.toUInt() == 1; }},
    {"org.gnome.desktop.a11y.interface", "high-contrast",
     [](const QVariant& value) { return value.toBool(); }},
}};

float halfwayToWhite(float component) {
    return component + (1 - component) / 2;
}

}  // namespace

Contrast& Contrast::shared() {
    static QPointer<Contrast> contrast;
    if (contrast == nullptr) {
        contrast = new Contrast(qApp);
    }
    return *contrast;
}

Contrast::Contrast(QObject* parent) : QObject(parent) {
    // Queued, so that connecting to the session bus does not delay the first frame.
    QMetaObject::invokeMethod(this, &Contrast::follow, Qt::QueuedConnection);
}

void Contrast::follow() {
    if (!Desktop::sessionBusExists()) {
        return;
    }
    auto* setting = new Desktop::PortalSwitch(QDBusConnection::sessionBus(), settings, this);
    connect(setting, &Desktop::PortalSwitch::changed, this, [this, setting] {
        high_ = setting->isOn();
        Q_EMIT changed();
        for (QWidget* widget : QApplication::allWidgets()) {
            widget->update();
        }
    });
}

QColor legible(const QColor& colour) {
    if (!Contrast::shared().isHigh()) {
        return colour;
    }
    return QColor::fromRgbF(halfwayToWhite(colour.redF()), halfwayToWhite(colour.greenF()),
                            halfwayToWhite(colour.blueF()));
}

}  // namespace Garden
