#pragma once

#include <QWidget>

/// An invisible widget that puts its window into full screen once: on the first turn of the event
/// loop after the window is shown, unless it is in full screen already.
class LaunchView : public QWidget {
    Q_OBJECT

public:
    explicit LaunchView(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool configured_ = false;
};
