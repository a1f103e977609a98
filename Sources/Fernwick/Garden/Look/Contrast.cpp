#include "Garden/Look/Contrast.hpp"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <array>

#include "Desktop/PortalSwitch.hpp"
#include "Desktop/SessionBus.hpp"

namespace Garden {

namespace {

// The first is the one that desktops agree on.
constexpr std::array<Desktop::PortalSwitch::Setting, 2> settings{{
    {"org.freedesktop.appearance", "contrast",
     [](const QVariant& value) { return value.toUInt() == 1; }},
    {"org.gnome.desktop.a11y.interface", "high-contrast",
     [](const QVariant& value) { return value.toBool(); }},
}};

constexpr float wayToWhite = 0.5F;

float lifted(float component) {
    return component + (1 - component) * wayToWhite;
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
    // The first frame does not wait for a connection to the bus.
    QMetaObject::invokeMethod(this, &Contrast::follow, Qt::QueuedConnection);
}

void Contrast::follow() {
    if (!sessionBusExists()) {
        return;
    }
    auto* desktop = new Desktop::PortalSwitch(QDBusConnection::sessionBus(), settings, this);
    connect(desktop, &Desktop::PortalSwitch::changed, this,
            [this, desktop] { setHigh(desktop->isOn()); });
}

void Contrast::setHigh(bool high) {
    high_ = high;
    Q_EMIT changed();
    for (QWidget* widget : QApplication::allWidgets()) {
        widget->update();
    }
}

QColor legible(const QColor& colour) {
    if (!Contrast::shared().isHigh()) {
        return colour;
    }
    return QColor::fromRgbF(lifted(colour.redF()), lifted(colour.greenF()), lifted(colour.blueF()));
}

}  // namespace Garden
