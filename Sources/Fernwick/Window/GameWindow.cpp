#include "Window/GameWindow.hpp"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QResizeEvent>

#include "Garden/Look/Icons.hpp"
#include "Screens/Main/ContentView.hpp"
#include "Window/LaunchView.hpp"
#include "Window/MenuCommands.hpp"
#include "Window/TitleBand.hpp"
#include "Window/WindowChrome.hpp"

namespace {

constexpr QSize defaultSize(940, 860);
constexpr QSize smallestSize(820, 760);

// A screen reader follows windows; the toolkit calls one that is a plain widget a mere filler.
QAccessibleInterface* createAccessible(const QString&, QObject* object) {
    auto* window = qobject_cast<GameWindow*>(object);
    return window == nullptr ? nullptr : new QAccessibleWidget(window, QAccessible::Window);
}

}  // namespace

GameWindow::GameWindow(Session& session)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      band_(new TitleBand(this)),
      content_(new ContentView(session, this)) {
    QAccessible::installFactory(createAccessible);
    setObjectName(QStringLiteral("main"));
    //: The name of the game. Stays as it is in every language.
    setWindowTitle(tr("Fernwick"));
    setMinimumSize(smallestSize);
    resize(defaultSize);
    // The content paints every pixel.
    setAttribute(Qt::WA_OpaquePaintEvent);

    band_->raise();
    // Until a player asks for one with Tab, no control holds the keyboard.
    setFocus();

    new LaunchView(this);
    new MenuCommands(session, band_->menuBar(), *this);
    create();
    new WindowChrome(*this, TitleBand::height);
    band_->watchWindow();
    connect(content_, &ContentView::appeared, this, &GameWindow::appeared, Qt::QueuedConnection);
    // Drawn at eight sizes, which takes longer than a frame.
    connect(this, &GameWindow::appeared, this,
            [this] { setWindowIcon(Garden::applicationIcon()); });
}

bool GameWindow::coversScreen() const {
    return isFullScreen() || isMaximized();
}

void GameWindow::changeEvent(QEvent* event) {
    // A window that covers a small screen must not outgrow it: a Wayland desktop ends the program
    // for that.
    if (event->type() == QEvent::WindowStateChange && coversScreen()) {
        setMinimumSize(QSize(0, 0));
    }
    QWidget::changeEvent(event);
}

void GameWindow::resizeEvent(QResizeEvent* event) {
    // No sooner: until the desktop has let it go, the window still has the screen's size.
    if (!coversScreen()) {
        setMinimumSize(smallestSize);
    }
    content_->setGeometry(rect());
    band_->setGeometry(0, 0, event->size().width(), TitleBand::height);
}

void GameWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    QCoreApplication::quit();
}
