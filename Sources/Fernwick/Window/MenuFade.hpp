#pragma once

#include <QObject>
#include <QVariantAnimation>

class QMenu;
class QWidget;

/// Fades a menu in and out, unless animations are turned off. The menu can be used at once and is
/// closed at once: what fades out is a picture of it in the window that it belongs to. Going from
/// one menu to the next fades neither. Without a compositing manager there is no fading in.
class MenuFade : public QObject {
    Q_OBJECT

public:
    /// `menu` becomes the parent.
    explicit MenuFade(QMenu& menu);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The window that the menu belongs to, or null.
    [[nodiscard]] QWidget* owner() const;
    void fadeIn();
    void fadeOut();

    QMenu& menu_;
    QVariantAnimation presence_;
};
