#pragma once

#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

namespace Garden {
class RiseEffect;
}

/// Dims the window behind a sheet and animates the sheet's appearance. Input does not wait for the
/// animation: a sheet that appears is usable at once, and one that disappears is hidden at once
/// while a snapshot of it fades. There is no animation under reduced motion.
class SheetShade : public QWidget {
    Q_OBJECT

public:
    explicit SheetShade(QWidget* parent);

    /// Call when `sheet`, which is above this widget, has been shown.
    void appear(QWidget& sheet);
    /// Call when `sheet` is about to be hidden.
    void disappear(QWidget& sheet);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void run(QAbstractAnimation::Direction direction);
    void setPresence(double presence);
    void finish();

    // From 0 (invisible) to 1.
    QVariantAnimation presence_;
    QPointer<QWidget> sheet_;
    QPointer<Garden::RiseEffect> effect_;
    QPixmap picture_;
    QPoint picturePlace_;
};
