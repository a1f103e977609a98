#include "Window/MenuUse.hpp"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

MenuUse::MenuUse(QMenuBar& bar) : QObject(&bar), bar_(bar) {
    bar_.window()->windowHandle()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &MenuUse::followFocus);
    for (const QAction* title : bar_.actions()) {
        QMenu* menu = title->menu();
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { setOpenMenu(menu); });
        // Queued, so that the run stays held between two menus, and between a menu and the bar.
        connect(
            menu, &QMenu::aboutToHide, this,
            [this, menu] {
                if (openMenu_ == menu && !menu->isVisible()) {
                    setOpenMenu(nullptr);
                } else if (openMenu_ != nullptr) {
                    reportActiveItem();
                }
            },
            Qt::QueuedConnection);
    }
}

bool MenuUse::eventFilter(QObject* watched, QEvent* event) {
    const bool isMouse = event->type() == QEvent::MouseButtonPress;
    if ((isMouse || event->type() == QEvent::KeyPress) &&
        QApplication::activePopupWidget() == nullptr) {
        // Desktops that show the menus in a panel may announce one without opening it, and need not
        // tell when it closes. A window that gets input has no open menu.
        setOpenMenu(nullptr);
        if (isMouse && !isOnTitle(static_cast<const QMouseEvent&>(*event))) {
            leaveBar();
        }
    }
    return QObject::eventFilter(watched, event);
}

void MenuUse::leaveBar() {
    if (!bar_.hasFocus()) {
        return;
    }
    QWidget* next = focusBefore_;
    if (next == nullptr || !next->isVisible()) {
        next = bar_.window();
    }
    next->setFocus(Qt::MenuBarFocusReason);
}

void MenuUse::followFocus(QWidget* before, QWidget* now) {
    if (now == &bar_) {
        if (bar_.activeAction() == nullptr) {
            // The bar was left with the focus when the window became inactive, or the score sheet
            // has given it back to the bar.
            leaveBar();
        } else if (before != nullptr) {
            focusBefore_ = before;
        }
    }
    update();
}

void MenuUse::setOpenMenu(QMenu* menu) {
    openMenu_ = menu;
    update();
}

// A menu that closes because the next one has opened makes Qt report the focus on the window, after
// it has reported it on the first item of the next one.
void MenuUse::reportActiveItem() const {
    if (openMenu_->activeAction() != nullptr) {
        QAccessibleEvent event(openMenu_, QAccessible::Focus);
        event.setChild(static_cast<int>(openMenu_->actions().indexOf(openMenu_->activeAction())));
        QAccessible::updateAccessibility(&event);
    }
}

void MenuUse::update() {
    const bool inUse = openMenu_ != nullptr || bar_.hasFocus();
    if (inUse != inUse_) {
        inUse_ = inUse;
        Q_EMIT changed(inUse);
    }
}

bool MenuUse::isOnTitle(const QMouseEvent& event) const {
    return bar_.actionAt(bar_.mapFrom(bar_.window(), event.position().toPoint())) != nullptr;
}
