#pragma once

#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

namespace Garden {
class RiseEffect;
}

/// The dark behind a sheet, and the sheet's soft coming and going. All of it is for the eye alone:
/// a sheet that comes takes pointer and keys at once, and of one that went only a picture lingers,
/// which takes neither. Under reduced motion both happen at once.
class SheetShade : public QWidget {
    Q_OBJECT

public:
    explicit SheetShade(QWidget* parent);

    /// Call when `sheet`, which lies over this, has been shown.
    void come(QWidget& sheet);
    /// Call when `sheet` is about to be hidden.
    void go(QWidget& sheet);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void run(QAbstractAnimation::Direction direction);
    void follow(double presence);
    void arrive();

    // From 0, nothing of the sheet to be seen, to 1.
    QVariantAnimation presence_;
    QPointer<QWidget> sheet_;
    QPointer<Garden::RiseEffect> effect_;
    QPixmap picture_;
    QPoint picturePlace_;
};
