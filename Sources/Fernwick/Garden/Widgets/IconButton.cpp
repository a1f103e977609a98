#include "Garden/Widgets/IconButton.hpp"

#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/ToolTip.hpp"

namespace Garden {

namespace {

constexpr int side = 26;
constexpr double symbolSize = 16;
constexpr double plateRadius = 7;
constexpr double plateOpacity = 0.05;

}  // namespace

IconButton::IconButton(Icon icon, const QString& helpText, QWidget* parent)
    : QuietButton({}, {}, {}, parent), icon_(icon) {
    IconButton::setDensity({});
    setToolTip(helpText);
    setAccessibleName(helpText);
}

void IconButton::setIcon(Icon icon) {
    if (icon != icon_) {
        icon_ = icon;
        update();
    }
}

void IconButton::setDensity(const Density& density) {
    scale_ = std::max(1.0, density.scale);
    setFixedSize(IconButton::sizeHint());
    QuietButton::setDensity(density);
}

QSize IconButton::sizeHint() const {
    return {scaled(side, scale_), scaled(side, scale_)};
}

bool IconButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        ToolTip::showFor(*this);
        return true;
    }
    return QuietButton::event(event);
}

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = rect();
    if (hovered()) {
        painter.fillPath(continuousRoundedRect(whole, plateRadius * scale_),
                         withOpacity(Qt::white, plateOpacity));
    }
    const double margin = (whole.width() - symbolSize * scale_) / 2;
    paintIcon(painter, icon_, inset(whole, margin), quietColour());
    focusRing().paint(
        painter, continuousRoundedRect(inset(whole, FocusRing::width / 2), plateRadius * scale_),
        mint);
}

}  // namespace Garden
