#pragma once

#include <QList>
#include <QWidget>

class QHBoxLayout;
class QMenuBar;
class QKeyEvent;

namespace Garden {
class IconButton;
}

/// The strip at the top of the window: the menu bar at its left, quiet marks to minimise, maximise
/// and close at its right. In full screen the marks are gone, and the menu bar stays away until
/// the pointer touches the top edge, or Alt or F10 is pressed.
class TitleBand : public QWidget {
    Q_OBJECT

public:
    /// Also the room the window's content leaves free at the top, in points.
    static constexpr int height = 46;

    explicit TitleBand(QWidget* window);

    [[nodiscard]] QMenuBar& menuBar() { return *menuBar_; }

    /// Starts to watch the pointer and the keys; the window must have been created.
    void watchWindow();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addMark(QHBoxLayout& row, Garden::IconButton* mark, void (TitleBand::*action)());
    void minimize();
    void toggleMaximized();
    void close();
    void followWindowState();
    void followPointer(int y);
    bool followKeys(const QKeyEvent& event);
    void reveal();
    void concealUnlessUsed();
    void openFirstMenu();

    QMenuBar* menuBar_;
    QList<Garden::IconButton*> marks_;
    Garden::IconButton* maximize_ = nullptr;
    // Alt went down and nothing else has been pressed since.
    bool altAlone_ = false;
    // The pointer stands in the band, in points from the top of the window.
    bool pointerInBand_ = false;
};
