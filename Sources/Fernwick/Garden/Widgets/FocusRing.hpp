#pragma once

#include <QColor>
#include <QFocusEvent>

class QPainter;
class QPainterPath;

namespace Garden {

/// The mark of the control that the keyboard is on. It shows only when the focus came by keyboard,
/// so that a click leaves no ring behind.
class FocusRing {
public:
    /// Width of the ring in logical pixels; a path inset by half of it stays inside its widget.
    static constexpr double width = 1.5;

    void focusIn(Qt::FocusReason reason);
    void focusOut(Qt::FocusReason reason);

    [[nodiscard]] bool visible() const { return visible_; }

    /// Strokes `path` when the ring is visible.
    void paint(QPainter& painter, const QPainterPath& path, const QColor& colour) const;

private:
    bool visible_ = false;
    bool resumes_ = false;
};

}  // namespace Garden
