#pragma once

#include <QPointer>
#include <QWidget>

class HighScoresView;
class Session;
class SheetShade;

/// Shows the high-scores sheet as a modal layer while `Session::showingScores()`: dims what is
/// behind, keeps the pointer and the keyboard focus inside, and restores the focus on closing.
class SheetLayer : public QWidget {
    Q_OBJECT

public:
    SheetLayer(Session& session, QWidget* parent);

protected:
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void present();
    void dismiss();
    void placeSheet();

    Session& session_;
    SheetShade* shade_;
    HighScoresView* sheet_ = nullptr;
    QPointer<QWidget> focusBefore_;
};
