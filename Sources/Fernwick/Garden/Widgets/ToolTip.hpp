#pragma once

#include <QWidget>

namespace Garden {

/// A tooltip inside the window of its control, so that it has round corners on every desktop. It is
/// above or below the control, or beside it if it would cover a text, digits or another control
/// there. It disappears when the pointer leaves the control, with a key, a click or the wheel, and
/// with the window's focus.
class ToolTip : public QWidget {
    Q_OBJECT

public:
    /// Shows `control.toolTip()` in place of the tooltip that the window may show already.
    static void showFor(QWidget& control);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit ToolTip(QWidget& control);

    QWidget* control_;
};

}  // namespace Garden
