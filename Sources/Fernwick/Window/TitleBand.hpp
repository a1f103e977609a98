#pragma once

#include <QList>
#include <QWidget>

class QGraphicsOpacityEffect;
class QMenuBar;
class QKeyEvent;
class MenuUse;

namespace Garden {
class IconButton;
}

/// The strip at the top of the window: the menu bar on the left; minimise, maximise and close
/// buttons on the right. In full screen the buttons are hidden, and the menu bar appears when the
/// pointer touches the top edge or the player presses Alt or F10.
class TitleBand : public QWidget {
    Q_OBJECT

public:
    /// In points. The main screen leaves this much free at its top.
    static constexpr int height = 46;

    explicit TitleBand(QWidget* window);

    [[nodiscard]] QMenuBar& menuBar() { return *menuBar_; }

    /// Lines the menu bar and the buttons up with the sides of `content`, in points of the window.
    /// If `content` begins within the band, the menu bar of full screen covers it.
    void setContent(const QRect& content);

    /// Dims the menus and the buttons as black of this opacity would, but no menus that are in use
    /// and none in full screen, where they are shown only to be used.
    void setDimming(double opacity);

    /// Starts to follow the pointer and the keys. The window must have a native handle.
    void watchWindow();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A menu has been opened or the menu bar has got the keyboard focus, or neither holds any
    /// more.
    void menuInUseChanged(bool inUse);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Enlarges the titles of the menus by the desktop's factor, as far as there is room.
    void fitMenuBar();
    void dim();
    void followWindowState();
    void followPointer(int y);
    bool followKey(const QKeyEvent& event);
    void concealUnlessUsed();
    void openFirstMenu();

    QMenuBar* menuBar_;
    MenuUse* menuUse_ = nullptr;
    QGraphicsOpacityEffect* dimming_;
    bool menuInUse_ = false;
    QList<Garden::IconButton*> buttons_;
    Garden::IconButton* maximize_ = nullptr;
    bool fullScreen_ = false;
    bool pointerInBand_ = false;
    bool overContent_ = false;
};
