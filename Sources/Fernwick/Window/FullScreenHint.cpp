#include "Window/FullScreenHint.hpp"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTimer>
#include <chrono>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Density.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Motion.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/Panel.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Session/Session.hpp"

namespace {

constexpr std::chrono::seconds stay{5};
constexpr double textSize = 13;
constexpr QSize padding(22, 11);
// From the top of the window.
constexpr int distance = 18;

}  // namespace

void FullScreenHint::showIfNew(Session& session, QWidget& window) {
    if (window.isFullScreen() && !session.started() && !session.hasStoredScores()) {
        (new FullScreenHint(session, window))->appear();
    }
}

FullScreenHint::FullScreenHint(Session& session, QWidget& window)
    : QWidget(&window), presence_(this) {
    // Screen readers speak a notification when it is shown.
    Garden::setAccessibleRole(*this, QAccessible::Notification);
    setAccessibleName(tr("Press F11 to leave full screen"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    window.installEventFilter(this);
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this,
            &FullScreenHint::place);
    connect(&session, &Session::changed, this, [this, &session] {
        if (session.started() || session.sheet() != Session::Sheet::none) {
            leave();
        }
    });
    presence_.setStartValue(0.0);
    presence_.setEndValue(1.0);
    presence_.setDuration(Garden::hintDuration);
    connect(&presence_, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&presence_, &QVariantAnimation::finished, this, [this] {
        if (presence_.direction() == QAbstractAnimation::Backward) {
            leave();
        }
    });
    QTimer::singleShot(stay, this, &FullScreenHint::disappear);
}

void FullScreenHint::appear() {
    place();
    show();
    raise();
    if (Garden::reducedMotion()) {
        presence_.setCurrentTime(Garden::hintDuration);
    } else {
        presence_.start();
    }
}

void FullScreenHint::disappear() {
    if (Garden::reducedMotion()) {
        leave();
    } else {
        presence_.setDirection(QAbstractAnimation::Backward);
        presence_.start();
    }
}

void FullScreenHint::leave() {
    presence_.stop();
    hide();
    deleteLater();
}

void FullScreenHint::place() {
    const QFont font =
        Garden::scaled(Garden::sans(textSize, QFont::Normal), Garden::TextScale::shared().factor());
    setFont(Garden::fittedTo(accessibleName(), font));
    QRect area({}, sizeHint());
    area.moveCenter(parentWidget()->rect().center());
    area.moveTop(distance);
    setGeometry(area);
}

QSize FullScreenHint::sizeHint() const {
    const QFontMetrics metrics(font());
    return QSize(metrics.horizontalAdvance(accessibleName()), metrics.height()) + 2 * padding;
}

bool FullScreenHint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        place();
    } else if (event->type() == QEvent::WindowStateChange && !window()->isFullScreen()) {
        leave();
    }
    return QWidget::eventFilter(watched, event);
}

void FullScreenHint::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(presence_.currentValue().toDouble());
    Garden::paintPanel(painter, rect(), height() / 2.0);
    painter.setPen(Garden::legible(Garden::primaryText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, accessibleName());
}
