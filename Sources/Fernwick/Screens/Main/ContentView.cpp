#include "Screens/Main/ContentView.hpp"

#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "Screens/Main/BoardArea.hpp"
#include "Screens/Main/ControlRow.hpp"
#include "Screens/Main/HeaderRow.hpp"
#include "Screens/Main/HintRow.hpp"
#include "Screens/Main/WidgetPixels.hpp"
#include "Screens/Scores/SheetLayer.hpp"
#include "Session/Session.hpp"

namespace {

constexpr int rowSpacing = 23;
constexpr int sidePadding = 38;
constexpr int bottomPadding = 26;

}  // namespace

ContentView::ContentView(Session& session, int topPadding, QWidget* parent)
    : QWidget(parent), boardArea_(new BoardArea(session, backdrop_)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(boardArea_, &BoardArea::placed, this, &ContentView::placeBoard);
    // From top to bottom: Tab follows the order in which they are added.
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sidePadding, topPadding, sidePadding, bottomPadding);
    column->setSpacing(rowSpacing);
    column->addWidget(new HeaderRow(session));
    column->addWidget(new ControlRow(session));
    column->addWidget(boardArea_, 1);
    column->addWidget(new HintRow(session));
    sheetLayer_ = new SheetLayer(session, this);
}

void ContentView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    // While a screen's scale changes on Wayland, the widget's ratio can differ from that of the
    // buffer that it is painted on. A new ratio repaints the whole window, this widget first.
    scale_ = painter.paintEngine()->paintDevice()->devicePixelRatio();
    placeBoard();
    const WidgetPixels pixels(painter, rect(), scale_);
    for (const QRect& part : event->region()) {
        const QRect area = pixels.of(part);
        painter.setClipRect(area);
        backdrop_.paint(painter, area);
    }
    if (!hasAppeared_) {
        hasAppeared_ = true;
        Q_EMIT appeared();
    }
}

void ContentView::resizeEvent(QResizeEvent*) {
    placeBoard();
    sheetLayer_->setGeometry(rect());
}

void ContentView::placeBoard() {
    const QPoint origin = boardArea_->pos();
    const Painting::BoardGeometry board =
        Painting::fitBoard(boardArea_->rect(), {int{Session::columns}, int{Session::rows}});
    backdrop_.fit(size(), scale_, board.frame.translated(origin));
    boardArea_->placeBoard(board, origin, scale_);
}
