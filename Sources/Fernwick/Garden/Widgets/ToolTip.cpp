#include "Garden/Widgets/ToolTip.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>

#include "Garden/Look/Density.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/Panel.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace Garden {

namespace {

// Lengths are in points.
constexpr double fontSize = 12;
constexpr double radius = 6;
constexpr QSize padding(9, 5);
constexpr int distance = 6;
constexpr int windowMargin = 6;

QRect rectInWindow(const QWidget& widget) {
    const auto* digits = qobject_cast<const RollingDigits*>(&widget);
    const QRect area = digits != nullptr ? digits->restArea() : widget.rect();
    return area.translated(widget.mapTo(widget.window(), QPoint()));
}

/// Texts that say the same all the time may be covered for a moment, rather than that a tooltip is
/// so far from its control that it seems to name another one.
enum class Labels { covered, kept };

/// What a tooltip of `control` must not cover.
QList<QRect> obstacles(const QWidget& control, Labels labels) {
    QList<QRect> found;
    for (const QWidget* widget : control.window()->findChildren<QWidget*>()) {
        const bool matters =
            (labels == Labels::kept && qobject_cast<const TrackedLabel*>(widget) != nullptr) ||
            qobject_cast<const RollingDigits*>(widget) != nullptr ||
            qobject_cast<const QAbstractButton*>(widget) != nullptr ||
            qobject_cast<const QLineEdit*>(widget) != nullptr;
        if (matters && widget != &control && widget->isVisible()) {
            found.append(rectInWindow(*widget));
        }
    }
    return found;
}

QRect movedInto(QRect rect, const QRect& room) {
    rect.moveRight(std::min(rect.right(), room.right()));
    rect.moveBottom(std::min(rect.bottom(), room.bottom()));
    rect.moveLeft(std::max(rect.left(), room.left()));
    rect.moveTop(std::max(rect.top(), room.top()));
    return rect;
}

QRect placeFor(const QWidget& control, const QSize& size) {
    // Not the shadow around a window with rounded corners.
    const QRect room = control.window()->childrenRect().marginsRemoved(QMargins() + windowMargin);
    const QRect from = rectInWindow(control);
    QRect place(QPoint(), size);
    place.moveCenter(from.center());
    const QRect level = place;
    place.moveBottom(from.top() - 1 - distance);
    const QRect above = movedInto(place, room);
    place.moveTop(from.bottom() + 1 + distance);
    const QRect below = movedInto(place, room);
    QList<QRect> covered;
    const auto obstacleAt = [&](const QRect& rect) {
        return std::ranges::find_if(covered,
                                    [&](const QRect& other) { return other.intersects(rect); });
    };
    for (const Labels labels : {Labels::kept, Labels::covered}) {
        covered = obstacles(control, labels);
        for (const QRect& candidate : {above, below}) {
            if (!candidate.intersects(from) && obstacleAt(candidate) == covered.end()) {
                return candidate;
            }
        }
    }
    // Beside the control and its neighbours, towards the middle of the window.
    const bool toLeft = from.center().x() > room.center().x();
    place = level;
    const auto moveBeside = [&](const QRect& rect) {
        toLeft ? place.moveRight(rect.left() - 1 - distance)
               : place.moveLeft(rect.right() + 1 + distance);
    };
    moveBeside(from);
    for (auto next = obstacleAt(place); next != covered.end(); next = obstacleAt(place)) {
        moveBeside(*next);
    }
    return room.contains(place) ? place : above;
}

}  // namespace

void ToolTip::showFor(QWidget& control) {
    for (ToolTip* shown : control.window()->findChildren<ToolTip*>()) {
        if (shown->control_ == &control) {
            return;
        }
        delete shown;
    }
    new ToolTip(control);
}

ToolTip::ToolTip(QWidget& control) : QWidget(control.window()), control_(&control) {
    setAccessibleRole(*this, QAccessible::ToolTip);
    setAccessibleName(control.toolTip());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(scaled(sans(fontSize, QFont::Normal), TextScale::shared().factor()));
    const QSize text = fontMetrics().size(Qt::TextSingleLine, control.toolTip());
    setGeometry(placeFor(control, text + 2 * padding));
    qApp->installEventFilter(this);
    show();
}

bool ToolTip::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool gone = watched == control_ && (type == QEvent::Leave || type == QEvent::Hide);
    const bool moved = watched == window() && type == QEvent::Resize;
    if (gone || moved || type == QEvent::KeyPress || type == QEvent::MouseButtonPress ||
        type == QEvent::Wheel || type == QEvent::WindowDeactivate) {
        hide();
        deleteLater();
    }
    return QWidget::eventFilter(watched, event);
}

void ToolTip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), radius);
    painter.setPen(primaryText);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, accessibleName());
}

}  // namespace Garden
