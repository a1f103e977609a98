#pragma once

#include <QWidget>

class ContentView;
class LaunchView;
class TitleBand;
class Session;
class WindowFrame;

/// The main window: without a system frame, filled by the main screen, with the title band on top
/// of it. Where it draws a shadow, all of that lies within the shadow's margins. It is shown empty
/// and unpainted; the screen and the band are made while the window manager works.
class GameWindow : public QWidget {
    Q_OBJECT

public:
    explicit GameWindow(Session& session);

Q_SIGNALS:
    /// The first frame has been painted. Work that it did not need starts here.
    void appeared();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeContent(const QSize& size);
    void placeContent();
    /// Within `visible`, all of the window but its shadow.
    void placeContent(const QRect& visible);

    Session& session_;
    LaunchView* launch_;
    WindowFrame* frame_ = nullptr;
    // Null until they are made.
    TitleBand* band_ = nullptr;
    ContentView* content_ = nullptr;
    bool hasAppeared_ = false;
};
