#pragma once

#include <QFocusFrame>
#include <QPixmap>
#include <QVariantAnimation>

/// The picture of a closed menu, fading out in the window that the menu belonged to. It takes no
/// mouse events and deletes itself at the end. Qt leaves a QFocusFrame out of the accessibility
/// tree, in which a widget that comes and goes would only disturb screen readers.
class ClosedMenu : public QFocusFrame {
    Q_OBJECT

public:
    /// `position` is in points of `window`. Starts at `opacity`, between 0 and 1.
    ClosedMenu(const QPixmap& picture, const QPoint& position, double opacity, QWidget& window);

    /// Deletes all of them at once. Returns whether there were any.
    static bool removeFrom(QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    QVariantAnimation presence_;
};
