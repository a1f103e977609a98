#pragma once

#include <QPointer>
#include <QWidget>

class HighScoresView;
class Session;
class SheetShade;

/// Presents the sheet of high scores over the whole window while the session shows scores: dims
/// what lies behind, keeps pointer and keyboard focus inside, gives the focus back on closing.
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
