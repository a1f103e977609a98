#pragma once

#include <QSize>
#include <QWidget>

/// An invisible widget that puts its window into full screen once: on the first turn of the event
/// loop after the window is shown, unless it is in full screen already. The window is not painted
/// before it has its size of full screen or, if it does not get that within 100 ms, until then.
class LaunchView : public QWidget {
    Q_OBJECT

public:
    explicit LaunchView(QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The window is shown, and the window manager or the compositor is busy with it. What it shows
    /// can be made meanwhile, for the size that it is about to get. Emitted once.
    void waiting(const QSize& size);
    /// The window has kept another size.
    void sizeKept();

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QSize fullScreenSize() const;
    void enterFullScreen();
    void paint();
    void paintAfterTimeout();

    // The window that it has been shown in first.
    QWidget* window_ = nullptr;
};
