#pragma once

#include <QVariantAnimation>
#include <QWidget>

class Session;

/// Tells how to leave full screen, at the top of the window, for a few seconds. It goes at once
/// when a run starts, a sheet opens or the window leaves full screen, and then deletes itself. The
/// pointer passes through. Without reduced motion it fades in and out.
class FullScreenHint : public QWidget {
    Q_OBJECT

public:
    /// Shows the hint on `window`, which becomes the parent, if that is in full screen and nothing
    /// is stored that the player has achieved before: who has played knows how to leave.
    static void showIfNew(Session& session, QWidget& window);

    [[nodiscard]] QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FullScreenHint(Session& session, QWidget& window);
    void place();
    void appear();
    void disappear();
    void leave();

    // From 0 (invisible) to 1.
    QVariantAnimation presence_;
};
