#pragma once

#include <QObject>
#include <QPointer>

class QMenu;
class QMenuBar;
class QMouseEvent;
class QWidget;

/// Whether the menus of a window are in use: one of them is open, or the menu bar has the keyboard
/// focus. The bar keeps the focus only while one of its titles is active.
class MenuUse : public QObject {
    Q_OBJECT

public:
    /// `bar` becomes the parent. It must have all its menus, and its window a native handle.
    explicit MenuUse(QMenuBar& bar);

    /// Gives the keyboard focus back to the widget that had it before the bar.
    void leaveBar();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed(bool inUse);

private:
    void followFocus(QWidget* before, QWidget* now);
    void setOpenMenu(QMenu* menu);
    void reportActiveItem() const;
    void update();
    [[nodiscard]] bool isOnTitle(const QMouseEvent& event) const;

    QMenuBar& bar_;
    QMenu* openMenu_ = nullptr;
    QPointer<QWidget> focusBefore_;
    bool inUse_ = false;
};
