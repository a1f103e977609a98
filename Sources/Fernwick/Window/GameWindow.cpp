#include "Window/GameWindow.hpp"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>
#include <QResizeEvent>

#include "Garden/Look/Icons.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Screens/Main/ContentView.hpp"
#include "Session/Session.hpp"
#include "Window/LaunchView.hpp"
#include "Window/Log.hpp"
#include "Window/MenuCommands.hpp"
#include "Window/TitleBand.hpp"
#include "Window/WindowBounds.hpp"
#include "Window/WindowChrome.hpp"
#include "Window/WindowFrame.hpp"

GameWindow::GameWindow(Session& session)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      band_(new TitleBand(this)),
      content_(new ContentView(session, this)) {
    // Screen readers follow windows; by default Qt reports a plain QWidget as a filler.
    Garden::setAccessibleRole(*this, QAccessible::Window);
    setObjectName(QStringLiteral("main"));
    //: The name of the game. Stays as it is in every language.
    setWindowTitle(tr("Fernwick"));
    setAttribute(Qt::WA_TranslucentBackground, WindowFrame::isSupported());
    // The content and the shadow around it paint every pixel.
    setAttribute(Qt::WA_OpaquePaintEvent);

    band_->raise();
    // No control has the focus until the player presses Tab.
    setFocus();

    new LaunchView(this);
    new MenuCommands(session, band_->menuBar(), *this);
    create();
    frame_ = new WindowFrame(*this);
    auto* bounds = new WindowBounds(*this, *frame_);
    auto* chrome = new WindowChrome(*this, *frame_, TitleBand::height);
    connect(frame_, &WindowFrame::marginsChanged, this, &GameWindow::placeContent);
    connect(chrome, &WindowChrome::resizeBegins, bounds, &WindowBounds::beginResize);
    band_->watchWindow();
    connect(band_, &TitleBand::menuInUseChanged, &session, &Session::setHeld);
    connect(content_, &ContentView::dimmed, band_, &TitleBand::setDimming);
    connect(content_, &ContentView::appeared, this, &GameWindow::appeared, Qt::QueuedConnection);
    connect(this, &GameWindow::appeared, frame_, &WindowFrame::begin);
    // Rendering its eight sizes takes longer than a frame.
    connect(this, &GameWindow::appeared, this,
            [this] { setWindowIcon(Garden::applicationIcon()); });
}

void GameWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) {
        qCDebug(windowLog) << windowState() << size();
        placeContent();
    }
    QWidget::changeEvent(event);
}

void GameWindow::resizeEvent(QResizeEvent* event) {
    qCDebug(windowLog) << "resized from" << event->oldSize() << "to" << event->size();
    placeContent();
}

void GameWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    frame_->paintShadow(painter, rect());
}

void GameWindow::placeContent() {
    const QRect visible = frame_ == nullptr ? rect() : frame_->visibleArea();
    content_->setGeometry(visible);
    content_->setBand(isFullScreen() ? 0 : TitleBand::height);
    band_->setContent(content_->contentArea());
    // A resize event's size is stale if an event filter has resized the window again.
    band_->setGeometry(QRect(visible.topLeft(), QSize(visible.width(), TitleBand::height)));
}

void GameWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    QCoreApplication::quit();
}
