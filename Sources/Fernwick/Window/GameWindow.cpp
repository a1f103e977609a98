#include "Window/GameWindow.hpp"

#include <QBackingStore>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>
#include <QResizeEvent>

#include "Desktop/BufferScale.hpp"
#include "Garden/Look/Icons.hpp"
#include "Garden/Look/TextScale.hpp"
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
      session_(session),
      launch_(new LaunchView(this)) {
    // Screen readers follow windows; by default Qt reports a plain QWidget as a filler.
    Garden::setAccessibleRole(*this, QAccessible::Window);
    setObjectName(QStringLiteral("main"));
    //: The name of the game. Stays as it is in every language.
    setWindowTitle(tr("Fernwick"));
    setAttribute(Qt::WA_TranslucentBackground, WindowFrame::isSupported());
    // The content and the shadow around it paint every pixel.
    setAttribute(Qt::WA_OpaquePaintEvent);
    // No control has the focus until the player presses Tab.
    setFocus();

    create();
    frame_ = new WindowFrame(*this);
    auto* bounds = new WindowBounds(*this, *frame_);
    auto* chrome = new WindowChrome(*this, *frame_, TitleBand::height);
    connect(frame_, &WindowFrame::marginsChanged, this, [this] { placeContent(); });
    connect(chrome, &WindowChrome::resizeBegins, bounds, &WindowBounds::beginResize);
    connect(launch_, &LaunchView::waiting, this, &GameWindow::makeContent);
    connect(launch_, &LaunchView::sizeKept, this, [this] { placeContent(); });
    connect(this, &GameWindow::appeared, this, [this] { hasAppeared_ = true; });
    connect(this, &GameWindow::appeared, frame_, &WindowFrame::begin);
    // Rendering its eight sizes takes longer than a frame.
    connect(this, &GameWindow::appeared, this,
            [this] { setWindowIcon(Garden::applicationIcon()); });
}

void GameWindow::makeContent(const QSize& size) {
    band_ = new TitleBand(this);
    content_ = new ContentView(session_, this);
    band_->stackUnder(frame_);
    content_->stackUnder(band_);
    connect(content_, &ContentView::dimmed, band_, &TitleBand::setDimming);
    connect(content_, &ContentView::appeared, this, &GameWindow::appeared, Qt::QueuedConnection);
    placeContent(isFullScreen() ? QRect(QPoint(), size) : frame_->visibleArea());
    // The content has followed it before.
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this,
            [this] { placeContent(); });
    content_->show();
    new MenuCommands(session_, band_->menuBar(), *this);
    band_->watchWindow();
    connect(band_, &TitleBand::menuInUseChanged, &session_, &Session::setHeld);
    band_->show();
    // Qt posts one for each widget that is shown. Handled after the first frame, they would paint
    // the whole window a second time.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
}

bool GameWindow::event(QEvent* event) {
    const bool isHandled = QWidget::event(event);
    switch (event->type()) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
        case QEvent::DevicePixelRatioChange:
            // Qt may paint without sending an UpdateRequest; this makes it send one.
            update();
            break;
#endif
        case QEvent::UpdateRequest:
            if (hasAppeared_ && Desktop::correctBufferScale(*backingStore())) {
                update();
            }
            break;
        default:
            break;
    }
    return isHandled;
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
    placeContent(frame_ == nullptr ? rect() : frame_->visibleArea());
}

void GameWindow::placeContent(const QRect& visible) {
    if (content_ == nullptr) {
        return;
    }
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
