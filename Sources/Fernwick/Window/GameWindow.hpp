#pragma once

#include <QWidget>

class ContentView;
class TitleBand;
class Session;

/// The one window: no title bar, the main screen as its content, the menu band above it.
class GameWindow : public QWidget {
    Q_OBJECT

public:
    explicit GameWindow(Session& session);

Q_SIGNALS:
    /// The first frame is on its way to the screen; what it did not need can be done now.
    void appeared();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] bool coversScreen() const;

    TitleBand* band_;
    ContentView* content_;
};
