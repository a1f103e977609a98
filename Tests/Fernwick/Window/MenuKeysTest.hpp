#pragma once

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"

/// Uses the menus with the keyboard and the mouse, in full screen and in a window.
class MenuKeysTest : public WindowTest, public ::testing::WithParamInterface<bool> {
protected:
    static constexpr Qt::Key firstMenu = Qt::Key_F10;

    MenuKeysTest() {
        if (!GetParam()) {
            leaveFullScreen();
        }
    }

    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) { Keyboard::press(window, key, held); }

    [[nodiscard]] QMenuBar& bar() const { return child<QMenuBar>(); }

    [[nodiscard]] static QMenu* openMenu() {
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    /// The title of the open menu; null if none is open.
    [[nodiscard]] static QString openTitle() {
        return openMenu() == nullptr ? QString() : openMenu()->title();
    }

    void closeMenus() {
        for (int menus = 2; openMenu() != nullptr && menus > 0; --menus) {
            press(Qt::Key_Escape);
        }
        ASSERT_EQ(openMenu(), nullptr);
    }

    /// Closes the menus and gives the focus of the menu bar back.
    void leaveMenus() {
        closeMenus();
        if (bar().hasFocus()) {
            press(Qt::Key_Escape);
        }
        ASSERT_FALSE(bar().hasFocus());
    }

    void click(const QWidget& widget, const QPoint& position) {
        QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(widget.window(), position));
        processEvents();
    }

    /// In full screen the menu bar appears when the pointer touches the top edge.
    void showBar() {
        QTest::mouseMove(window.windowHandle(), QPoint(window.width() / 2, 0));
        processEvents();
        ASSERT_TRUE(bar().isVisible());
    }

    void clickTitle(qsizetype index) {
        click(bar(), bar().actionGeometry(bar().actions().at(index)).center());
    }
};

inline std::string menuKeysName(const ::testing::TestParamInfo<bool>& fullScreen) {
    return fullScreen.param ? "FullScreen" : "Window";
}
