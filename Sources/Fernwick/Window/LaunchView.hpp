#pragma once

#include <QWidget>

/// An invisible view that takes the window it is put into to full screen, once: on the turn of the
/// event loop after the window is shown, unless it is in full screen by then. A player who leaves
/// full screen afterwards stays out of it.
class LaunchView : public QWidget {
    Q_OBJECT

public:
    explicit LaunchView(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool configured_ = false;
};
