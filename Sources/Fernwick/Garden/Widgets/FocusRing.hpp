#pragma once

#include <QColor>
#include <QFocusEvent>

class QPainter;
class QPainterPath;
class QWidget;

namespace Garden {

/// The outline around the control with the keyboard focus. It is visible only if the focus was
/// moved by keyboard, not by a click or by the program.
class FocusRing {
public:
    /// Stroke width in points. Inset the path by half of it to keep the ring inside the widget.
    static constexpr double width = 1.5;

    void focusIn(Qt::FocusReason reason);
    void focusOut(Qt::FocusReason reason);

    [[nodiscard]] bool visible() const { return visible_; }

    /// Strokes `path` if the ring is visible.
    void paint(QPainter& painter, const QPainterPath& path, const QColor& colour) const;

private:
    bool visible_ = false;
    // The focus left temporarily while the ring was visible.
    bool resumes_ = false;
};

/// Call before hiding `hidden`. If it contains the focus widget, moves the focus to its window;
/// otherwise Qt would give it to the next control in the tab order.
void releaseFocus(const QWidget& hidden);

}  // namespace Garden
