#include "Garden/Widgets/FocusRing.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace Garden {

namespace {

// The focus leaves for a menu or another window and comes back by itself.
bool isDetour(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

}  // namespace

void FocusRing::focusIn(Qt::FocusReason reason) {
    visible_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
               reason == Qt::ShortcutFocusReason || (isDetour(reason) && resumes_);
}

void FocusRing::focusOut(Qt::FocusReason reason) {
    resumes_ = visible_ && isDetour(reason);
    visible_ = false;
}

void FocusRing::paint(QPainter& painter, const QPainterPath& path, const QColor& colour) const {
    if (visible_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(path, QPen(colour, width));
    }
}

}  // namespace Garden
