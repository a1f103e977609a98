#include "Garden/Widgets/FocusRing.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QWidget>

namespace Garden {

namespace {

// Menus, popups and other windows take the focus and later return it.
bool isTemporary(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

}  // namespace

void FocusRing::focusIn(Qt::FocusReason reason) {
    visible_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
               reason == Qt::ShortcutFocusReason || (isTemporary(reason) && resumes_);
}

void FocusRing::focusOut(Qt::FocusReason reason) {
    resumes_ = visible_ && isTemporary(reason);
    visible_ = false;
}

void FocusRing::paint(QPainter& painter, const QPainterPath& path, const QColor& colour) const {
    if (visible_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(path, QPen(colour, width));
    }
}

void releaseFocus(const QWidget& hidden) {
    // QApplication::focusWidget() is null while another application is active; the window still
    // remembers its focus widget and would give it the focus on activation.
    const QWidget* focus = hidden.window()->focusWidget();
    if (focus != nullptr && (focus == &hidden || hidden.isAncestorOf(focus))) {
        hidden.window()->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace Garden
