#include "Garden/Look/TextScale.hpp"

#include <QApplication>
#include <QPointer>
#include <algorithm>

#include "Desktop/Environment.hpp"
#include "Desktop/PortalSetting.hpp"

namespace Garden {

namespace {

constexpr double leastSetting = 0.5;
constexpr double greatestSetting = 3;

}  // namespace

double textScaleFor(const QVariant& setting) {
    const double factor = setting.userType() == QMetaType::Double ? setting.toDouble() : 1;
    // False for NaN, too.
    const bool valid = factor >= leastSetting && factor <= greatestSetting;
    return valid ? std::max(1.0, factor) : 1;
}

TextScale& TextScale::shared() {
    static QPointer<TextScale> scale;
    if (scale == nullptr) {
        scale = new TextScale(qApp);
    }
    return *scale;
}

TextScale::TextScale(QObject* parent) : QObject(parent) {
    // Queued, so that connecting to the session bus does not delay the first frame.
    QMetaObject::invokeMethod(this, &TextScale::follow, Qt::QueuedConnection);
}

void TextScale::follow() {
    if (!Desktop::isOnWayland() || qEnvironmentVariableIsSet("QT_FONT_DPI") ||
        !Desktop::sessionBusExists()) {
        return;
    }
    auto* setting = new Desktop::PortalSetting(
        QDBusConnection::sessionBus(), "org.gnome.desktop.interface", "text-scaling-factor", this);
    connect(setting, &Desktop::PortalSetting::told, this,
            [this](const QVariant& value) { setFactor(textScaleFor(value)); });
}

void TextScale::setFactor(double factor) {
    if (factor != factor_) {
        factor_ = factor;
        Q_EMIT changed();
    }
}

}  // namespace Garden
