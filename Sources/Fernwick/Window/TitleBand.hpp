#pragma once

#include <QList>
#include <QWidget>

class QMenuBar;
class QKeyEvent;

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

    /// Starts to follow the pointer and the keys. The window must have a native handle.
    void watchWindow();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followWindowState();
    void followPointer(int y);
    bool followKeys(const QKeyEvent& event);
    void concealUnlessUsed();
    void openFirstMenu();

    QMenuBar* menuBar_;
    QList<Garden::IconButton*> buttons_;
    Garden::IconButton* maximize_ = nullptr;
    // Alt is down and nothing else has been pressed since.
    bool altAlone_ = false;
    bool pointerInBand_ = false;
};
