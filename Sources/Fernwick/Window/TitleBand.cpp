#include "Window/TitleBand.hpp"

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "Garden/Look/Density.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Window/AltTap.hpp"
#include "Window/MenuStyle.hpp"
#include "Window/MenuUse.hpp"

namespace {

constexpr int widestMargin = 38;
constexpr int buttonSpacing = 8;
// In points: with the space around it, a larger title would reach into the rows of low windows.
constexpr int largestTitle = 18;

}  // namespace

TitleBand::TitleBand(QWidget* window)
    : QWidget(window), menuBar_(new QMenuBar(this)), dimming_(new QGraphicsOpacityEffect(this)) {
    setGraphicsEffect(dimming_);
    setDimming(0);
    menuBar_->installEventFilter(this);
    auto* row = new QHBoxLayout(this);
    row->setSpacing(buttonSpacing);
    row->addWidget(menuBar_, 0, Qt::AlignVCenter);
    row->addStretch();
    const auto addButton = [&](Garden::IconButton* button, auto action) {
        row->addWidget(button, 0, Qt::AlignVCenter);
        buttons_.append(button);
        connect(button, &QAbstractButton::clicked, window, action);
    };
    //: Tooltips of the window buttons, in the words that desktops use in the language.
    maximize_ = new Garden::IconButton(Garden::Icon::windowMaximize, tr("Maximise"));
    addButton(new Garden::IconButton(Garden::Icon::windowMinimize, tr("Minimise")),
              &QWidget::showMinimized);
    addButton(maximize_,
              [window] { window->setWindowState(window->windowState() ^ Qt::WindowMaximized); });
    addButton(new Garden::IconButton(Garden::Icon::windowClose, tr("Close")), &QWidget::close);
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this,
            &TitleBand::fitMenuBar);
}

void TitleBand::setContent(const QRect& content) {
    overContent_ = content.top() < height;
    const int margin = std::min(content.left(), widestMargin);
    // The first title's text, rather than its hover plate, lines up with the rows below.
    const int menuMargin = margin - menuItemPadding - menuItemSpacing;
    layout()->setContentsMargins(isRightToLeft() ? QMargins(margin, 0, menuMargin, 0)
                                                 : QMargins(menuMargin, 0, margin, 0));
}

void TitleBand::fitMenuBar() {
    const QFont full = QApplication::font("QMenuBar");
    const int wanted = Garden::scaled(full.pixelSize(), Garden::TextScale::shared().factor());
    QFont font = menuBar_->font();
    for (int size = std::min(wanted, largestTitle); size >= full.pixelSize(); --size) {
        font.setPixelSize(size);
        menuBar_->setFont(font);
        if (layout()->minimumSize().width() <= width()) {
            return;
        }
    }
}

void TitleBand::resizeEvent(QResizeEvent*) {
    fitMenuBar();
}

void TitleBand::paintEvent(QPaintEvent*) {
    if (overContent_ && window()->isFullScreen() && menuBar_->isVisible()) {
        QPainter(this).fillRect(rect(), Garden::night);
    }
}

void TitleBand::setDimming(double opacity) {
    dimming_->setOpacity(1 - opacity);
    dim();
}

void TitleBand::dim() {
    dimming_->setEnabled(dimming_->opacity() < 1 && !fullScreen_ && !menuInUse_);
}

void TitleBand::watchWindow() {
    window()->installEventFilter(this);
    window()->windowHandle()->installEventFilter(this);
    menuUse_ = new MenuUse(*menuBar_);
    connect(menuUse_, &MenuUse::changed, this, [this](bool inUse) {
        menuInUse_ = inUse;
        dim();
        Q_EMIT menuInUseChanged(inUse);
    });
    connect(new AltTap(this), &AltTap::tapped, this, [this] {
        // QMenuBar handles Alt itself while it is visible.
        if (menuBar_->isHidden()) {
            openFirstMenu();
        }
    });
    for (const QAction* menu : menuBar_->actions()) {
        connect(menu->menu(), &QMenu::aboutToHide, this, &TitleBand::concealUnlessUsed,
                Qt::QueuedConnection);
    }
    followWindowState();
    fitMenuBar();
}

bool TitleBand::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::WindowStateChange:
            followWindowState();
            break;
        case QEvent::Show:
        case QEvent::Hide:
            update();
            break;
        case QEvent::MouseMove:
            if (watched->isWindowType()) {
                followPointer(static_cast<QMouseEvent*>(event)->position().toPoint().y());
            }
            break;
        case QEvent::Leave:
            if (watched->isWindowType()) {
                pointerInBand_ = false;
            }
            break;
        case QEvent::KeyPress:
            if (watched->isWindowType() && followKey(static_cast<QKeyEvent&>(*event))) {
                return true;
            }
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void TitleBand::followWindowState() {
    const bool fullScreen = window()->isFullScreen();
    for (Garden::IconButton* button : buttons_) {
        button->setVisible(!fullScreen);
    }
    maximize_->setIcon(window()->isMaximized() ? Garden::Icon::windowRestore
                                               : Garden::Icon::windowMaximize);
    // The event also comes when the state stays the same: on GNOME's Wayland session, opening a
    // menu deactivates the window for a moment, and Qt reports both changes this way.
    if (fullScreen != std::exchange(fullScreen_, fullScreen)) {
        if (fullScreen) {
            menuUse_->leaveBar();
        }
        menuBar_->setVisible(!fullScreen);
        dim();
    }
}

void TitleBand::followPointer(int y) {
    pointerInBand_ = y < height;
    if (y <= 0) {
        menuBar_->show();
    } else {
        concealUnlessUsed();
    }
}

bool TitleBand::followKey(const QKeyEvent& event) {
    if (event.key() != Qt::Key_F10 || event.modifiers() != Qt::NoModifier) {
        return false;
    }
    openFirstMenu();
    return true;
}

void TitleBand::concealUnlessUsed() {
    if (window()->isFullScreen() && !pointerInBand_ &&
        QApplication::activePopupWidget() == nullptr) {
        menuUse_->leaveBar();
        menuBar_->hide();
    }
}

void TitleBand::openFirstMenu() {
    menuBar_->show();
    menuBar_->setActiveAction(menuBar_->actions().constFirst());
}
