#pragma once

#include <QWidget>

class ContentView;
class TitleBand;
class Session;

/// The main window: frameless, filled by the main screen, with the title band on top of it.
class GameWindow : public QWidget {
    Q_OBJECT

public:
    explicit GameWindow(Session& session);

Q_SIGNALS:
    /// The first frame has been painted. Work that it did not need starts here.
    void appeared();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void placeContent();

    TitleBand* band_;
    ContentView* content_;
};
