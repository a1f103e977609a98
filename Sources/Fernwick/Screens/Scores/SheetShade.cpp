#include "Screens/Scores/SheetShade.hpp"

#include <QEvent>
#include <QPainter>

#include "Garden/Look/Motion.hpp"
#include "Garden/Widgets/RiseEffect.hpp"

namespace {

constexpr double scrimOpacity = 0.48;

// Without the window's background, which would show in the rounded corners.
QPixmap pictureOf(QWidget& sheet) {
    QPixmap picture(sheet.size() * sheet.devicePixelRatioF());
    picture.setDevicePixelRatio(sheet.devicePixelRatioF());
    picture.fill(Qt::transparent);
    sheet.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

}  // namespace

SheetShade::SheetShade(QWidget* parent) : QWidget(parent), presence_(this) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    parent->installEventFilter(this);
    presence_.setStartValue(0.0);
    presence_.setEndValue(1.0);
    presence_.setDuration(Garden::sheetDuration);
    presence_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&presence_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setPresence(value.toDouble()); });
    connect(&presence_, &QVariantAnimation::finished, this, &SheetShade::finish);
}

void SheetShade::appear(QWidget& sheet) {
    picture_ = {};
    sheet_ = &sheet;
    effect_ = new Garden::RiseEffect;
    effect_->setPresence(presence_.currentValue().toDouble());
    sheet.setGraphicsEffect(effect_);
    show();
    run(QAbstractAnimation::Forward);
}

void SheetShade::disappear(QWidget& sheet) {
    sheet.setGraphicsEffect(nullptr);
    picture_ = pictureOf(sheet);
    picturePlace_ = mapFromGlobal(sheet.mapToGlobal(QPoint()));
    run(QAbstractAnimation::Backward);
}

bool SheetShade::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
        // The snapshot would no longer be centred.
        if (!picture_.isNull()) {
            presence_.setCurrentTime(0);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void SheetShade::run(QAbstractAnimation::Direction direction) {
    presence_.setDirection(direction);
    if (window()->isVisible() && !Garden::reducedMotion()) {
        // A running animation reverses from its current value.
        if (presence_.state() == QAbstractAnimation::Stopped) {
            presence_.start();
        }
    } else {
        presence_.stop();
        presence_.setCurrentTime(direction == QAbstractAnimation::Forward ? presence_.duration()
                                                                          : 0);
        finish();
    }
}

void SheetShade::setPresence(double presence) {
    if (effect_ != nullptr) {
        effect_->setPresence(presence);
    }
    update();
}

void SheetShade::finish() {
    if (presence_.direction() == QAbstractAnimation::Forward) {
        if (sheet_ != nullptr) {
            sheet_->setGraphicsEffect(nullptr);
        }
    } else {
        picture_ = {};
        hide();
    }
}

void SheetShade::paintEvent(QPaintEvent*) {
    const double presence = presence_.currentValue().toDouble();
    QColor scrim = Qt::black;
    scrim.setAlphaF(static_cast<float>(scrimOpacity * presence));
    QPainter painter(this);
    painter.fillRect(rect(), scrim);
    if (!picture_.isNull()) {
        painter.setOpacity(presence);
        painter.drawPixmap(picturePlace_ + QPointF(0, Garden::RiseEffect::shift(presence)),
                           picture_);
    }
}
