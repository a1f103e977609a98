#pragma once

#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>
#include <map>

#include "Session/Session.hpp"

namespace Garden {
class RiseEffect;
class Sheet;
}  // namespace Garden

/// Shows `Session::sheet()` as a modal layer: dims what is behind, keeps the pointer and the
/// keyboard focus inside, and restores the focus on closing. Input does not wait for the animation:
/// a sheet that appears is usable at once, and one that disappears is hidden at once while a
/// snapshot of it fades. There is no animation under reduced motion.
class SheetLayer : public QWidget {
    Q_OBJECT

public:
    /// Of the black over what is behind the sheet.
    static constexpr double scrimOpacity = 0.48;

    SheetLayer(Session& session, QWidget* parent);

Q_SIGNALS:
    /// The scrim has got this opacity, from 0 to `scrimOpacity`.
    void dimmed(double opacity);

protected:
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    [[nodiscard]] Garden::Sheet* makeSheet();
    void present();
    void dismiss();
    void placeSheet();
    void showSheet(bool shown);
    void animate(QAbstractAnimation::Direction direction);
    void finish();
    [[nodiscard]] double scrim() const;

    Session& session_;
    Session::Sheet shown_ = Session::Sheet::none;
    std::map<Session::Sheet, Garden::Sheet*> sheets_;
    // The one that is open or was open last.
    Garden::Sheet* sheet_ = nullptr;
    QPointer<QWidget> focusBefore_;
    // From 0 (invisible) to 1.
    QVariantAnimation presence_;
    QPointer<Garden::RiseEffect> effect_;
    // The snapshot of a sheet that disappears, drawn in its place.
    QPixmap picture_;
};
