#pragma once

#include <QObject>
#include <QWidget>

/// Keeps a frameless window whole and reachable on its screen. Sets its default and minimum size,
/// bounded by the screen's available area, and fits it again after full screen and when screens
/// change.
class WindowBounds : public QObject {
    Q_OBJECT

public:
    /// `window` must have a native handle.
    explicit WindowBounds(QWidget& window);

    /// Enforces the minimum size during a resize by the player, which begins now and ends when the
    /// pointer is over the window again. Needed on Wayland only.
    void beginResize();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followScreen();
    void followState();
    void fitToChangedScreen();
    void repaintLater();
    void setMinimum();
    /// Moves and shrinks the window into the available area, unless it covers the screen.
    void fit();

    QWidget& window_;
    // Whether the window was maximised or in full screen at the last change of its state.
    bool covers_ = false;
    bool fitsAtNextResize_ = false;
};
