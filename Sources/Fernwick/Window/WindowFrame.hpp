#pragma once

#include <QMargins>
#include <QWidget>

#include "Painting/Ground/WindowShadow.hpp"

/// The frame that the window draws itself where neighbouring windows have one: rounded corners with
/// a fine edge, and the shadow in a margin around the visible part of the window. There is none
/// while the window fills the screen or a part of it.
///
/// It lies on top of everything else in the window and paints only the corners and the edge.
class WindowFrame : public QWidget {
    Q_OBJECT

public:
    /// Whether the desktop is X11 with a compositor and with a window manager that places and sizes
    /// windows without their margin. Other window managers leave shadows to the compositor, which
    /// draws them around a rectangle.
    [[nodiscard]] static bool isSupported();

    /// `window` must have a native handle, which is translucent if a frame was supported when it
    /// was created. Otherwise there never is one.
    explicit WindowFrame(QWidget& window);

    /// Follows the desktop from now on. Until then the window is square: if it had a margin when it
    /// is shown, and none in full screen a moment later, mutter would take the margin for a part of
    /// the window to which it returns.
    void begin();

    void setSupported(bool supported);

    /// Whether the window fills the screen, or its height or width beside another window.
    [[nodiscard]] bool fillsScreen() const { return fillsScreen_; }
    /// The width of the shadow around the visible part of the window; zero if there is none.
    [[nodiscard]] QMargins margins() const { return margins_; }
    /// The visible part of the window, in points of the window.
    [[nodiscard]] QRect visibleArea() const;
    /// The same and the part of the shadow next to it in which the edges can be dragged.
    [[nodiscard]] QRect inputArea() const;

    /// Paints the shadow around the visible part, and its edges below that, in the paint event of a
    /// widget with this geometry in the window.
    void paintShadow(QPainter& painter, const QRect& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void marginsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void followDesktop();
    /// Adapts to the state of the window.
    void refresh();
    /// Adapts to its size.
    void fit();
    void tellDesktop();
    /// The squares with the rounded corners, in points of the window.
    [[nodiscard]] QRegion corners() const;

    QWidget& window_;
    bool supported_ = false;
    bool fillsScreen_ = false;
    QMargins margins_;
    Painting::WindowShadow shadow_;
};
