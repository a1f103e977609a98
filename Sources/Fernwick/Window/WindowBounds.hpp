#pragma once

#include <QObject>
#include <QWidget>

class WindowFrame;

/// Keeps a frameless window whole and reachable on its screen. Sets its default and minimum size,
/// bounded by the screen's available area, and fits it again after full screen and when screens
/// change. All of this is about the visible part of the window, without the margins of its frame.
class WindowBounds : public QObject {
    Q_OBJECT

public:
    /// `window` must have a native handle.
    WindowBounds(QWidget& window, const WindowFrame& frame);

    /// Enforces the minimum size during a resize by the player, which begins now and ends when the
    /// pointer is over the window again. Needed on Wayland only.
    void beginResize();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followScreen();
    void followState();
    void fitToChangedScreen();
    void repaintLater();
    void sendSizeLater();
    void setMinimum();
    void followMargins();
    void rememberSize();
    /// Whether the window has the size that it had last when it did not fill the screen.
    [[nodiscard]] bool isAsRemembered() const;
    /// Where the visible part of the window lies or, if its margins have changed, is to lie.
    [[nodiscard]] QRect visiblePlace() const;
    /// Moves and shrinks the window into the available area, unless it covers the screen.
    void fit();

    QWidget& window_;
    const WindowFrame& frame_;
    // Whether the window was maximised or in full screen at the last change of its state.
    bool covers_ = false;
    bool fitsAtNextResize_ = false;
    // Of the visible part, when the window last did not fill the screen, and its margins then.
    QSize normalSize_;
    QMargins normalMargins_;
};
