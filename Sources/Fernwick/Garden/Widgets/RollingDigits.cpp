#include "Garden/Widgets/RollingDigits.hpp"

#include <QAccessible>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Motion.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 33;
constexpr QFont::Weight fontWeight = QFont::Light;
constexpr int minimumDigits = 3;
// The least space that the font leaves beside a digit, in font sizes. Cut off, so that the digits
// line up with the label above them.
constexpr double sideBearing = 0.058;
// How far digits roll, in font sizes. They fade in and out meanwhile.
constexpr double rollDistance = 30 / fontSize;

QString digits(qint64 value) {
    return QString::asprintf("%0*lld", minimumDigits, value);
}

QChar digitAt(const QString& text, int fromRight) {
    const auto index = text.size() - 1 - fromRight;
    return index >= 0 ? text[index] : QChar(u' ');
}

}  // namespace

RollingDigits::RollingDigits(Qt::Alignment alignment, QWidget* parent)
    : QWidget(parent), alignment_(alignment), roll_(this) {
    setAccessibleRole(*this, QAccessible::StaticText);
    setFont(mono(fontSize, fontWeight));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    roll_.setStartValue(0.0);
    roll_.setEndValue(1.0);
    roll_.setDuration(digitRollDuration);
    roll_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&roll_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    // The first call only sends the request to the settings portal, whose reply comes later.
    static_cast<void>(reducedMotion());
}

void RollingDigits::setValue(qint64 value) {
    const bool first = shown_.isEmpty();
    if (!first && value == value_) {
        return;
    }
    value_ = value;
    roll_.stop();
    previous_ = shown_;
    shown_ = digits(value);
    if (previous_.size() != shown_.size()) {
        updateGeometry();
    }
    if (!first && isVisible() && !reducedMotion()) {
        roll_.start();
    }
    update();
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void RollingDigits::setDensity(const Density& density) {
    setFont(scaled(mono(fontSize, fontWeight), density.scale));
    updateGeometry();
    update();
}

QSize RollingDigits::sizeHint() const {
    const QFontMetricsF metrics(font());
    const auto count = std::max<qsizetype>(shown_.size(), minimumDigits);
    const double width = metrics.horizontalAdvance(u'0') * static_cast<double>(count) -
                         2 * sideBearing * font().pixelSize();
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(metrics.height()))};
}

QRect RollingDigits::restArea() const {
    const auto digits = static_cast<int>(std::ceil(QFontMetricsF(font()).capHeight()));
    const int room = (height() - digits) / 2;
    return rect().adjusted(0, room, 0, -room);
}

double RollingDigits::left(int fromRight) const {
    const double cell = QFontMetricsF(font()).horizontalAdvance(u'0');
    const double bearing = sideBearing * font().pixelSize();
    const double needed = cell * static_cast<double>(shown_.size());
    const bool staysAtRight = alignment_.testFlag(Qt::AlignRight) != isRightToLeft();
    const double right = staysAtRight ? width() + bearing : needed - bearing;
    return right - cell * (fromRight + 1);
}

QBrush RollingDigits::fadedAtEdges(double opacity) const {
    const double fade = (height() - QFontMetricsF(font()).capHeight()) / 2 / height();
    QLinearGradient colours(0, 0, 0, height());
    colours.setColorAt(0, Qt::transparent);
    colours.setColorAt(fade, withOpacity(mint, opacity));
    colours.setColorAt(1 - fade, withOpacity(mint, opacity));
    colours.setColorAt(1, Qt::transparent);
    return colours;
}

void RollingDigits::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double distance = rollDistance * font().pixelSize();
    const double baseline = (height() + QFontMetricsF(font()).capHeight()) / 2;
    const auto draw = [&](int fromRight, QChar digit, double shift, double opacity) {
        if (shift == 0) {
            painter.setPen(mint);
        } else {
            painter.setPen(QPen(fadedAtEdges(opacity), 1));
        }
        painter.drawText(QPointF(left(fromRight), baseline + shift * distance), QString(digit));
    };
    const bool rolling = roll_.state() == QAbstractAnimation::Running;
    const double progress = roll_.currentValue().toDouble();
    for (int fromRight = 0; fromRight < shown_.size(); ++fromRight) {
        const QChar now = digitAt(shown_, fromRight);
        const QChar before = digitAt(previous_, fromRight);
        if (rolling && now != before) {
            // The old digit fades out faster than the new one fades in, so that they do not blur
            // into each other.
            draw(fromRight, before, -progress, (1 - progress) * (1 - progress));
            draw(fromRight, now, 1 - progress, progress);
        } else {
            draw(fromRight, now, 0, 1);
        }
    }
}

}  // namespace Garden
