#include "Screens/Main/ContentView.hpp"

#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Screens/Main/BoardArea.hpp"
#include "Screens/Main/ControlRow.hpp"
#include "Screens/Main/HeaderRow.hpp"
#include "Screens/Main/HintRow.hpp"
#include "Screens/Main/SheetLayer.hpp"
#include "Screens/Main/WidgetPixels.hpp"
#include "Session/Session.hpp"

namespace {

Painting::BoardGeometry fitBoard(const QRect& space) {
    return Painting::fitBoard(space, {int{Session::columns}, int{Session::rows}});
}

}  // namespace

ContentView::ContentView(Session& session, QWidget* parent)
    : QWidget(parent),
      scale_(devicePixelRatioF()),
      // From top to bottom: Tab follows the order in which they are created.
      header_(new HeaderRow(session, this)),
      controls_(new ControlRow(session, this)),
      boardArea_(new BoardArea(session, backdrop_, this)),
      hints_(new HintRow(session, this)),
      sheetLayer_(new SheetLayer(session, this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(boardArea_, &BoardArea::placed, this, &ContentView::placeBoard);
    connect(sheetLayer_, &SheetLayer::dimmed, this, &ContentView::dimmed);
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this, &ContentView::arrange);
}

void ContentView::setBand(int height) {
    if (height != band_) {
        band_ = height;
        arrange();
    }
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

QRect ContentView::contentArea() const {
    return arrangement_.content;
}

bool ContentView::event(QEvent* event) {
    // A row has got another height.
    if (event->type() == QEvent::LayoutRequest) {
        place();
    }
    return QWidget::event(event);
}

void ContentView::resizeEvent(QResizeEvent*) {
    arrange();
    sheetLayer_->setGeometry(rect());
}

void ContentView::arrange() {
    arrangement_ = arrangementFor(size(), band_, Garden::TextScale::shared().factor());
    const Arrangement& wanted = arrangement_;
    header_->arrange(wanted.beside, wanted.rows);
    controls_->arrange(wanted.columnWidth, wanted.rows);
    hints_->arrange(wanted.beside        ? HintRow::Form::column
                    : wanted.foldedHints ? HintRow::Form::twoLines
                                         : HintRow::Form::oneLine,
                    wanted.hints);
    place();
}

void ContentView::place() {
    const Arrangement& wanted = arrangement_;
    QRect rows = wanted.content;
    QRect board = wanted.content;
    const int header = header_->sizeHint().height();
    const int controls = controls_->sizeHint().height();
    const int hints = hints_->sizeHint().height();
    if (wanted.beside) {
        board.setLeft(rows.left() + wanted.columnWidth + wanted.spacing);
        rows.setWidth(wanted.columnWidth);
        // As high as the board, if that is enough.
        const double height = fitBoard(board).frame.height();
        if (header + controls + hints + 2 * wanted.spacing <= height) {
            const int margin = qRound((board.height() - height) / 2);
            rows.adjust(0, margin, 0, -margin);
        }
    } else {
        board.adjust(0, header + controls + 2 * wanted.spacing, 0, -hints - wanted.spacing);
    }
    const auto place = [&](QWidget* row, int top, int height) {
        row->setGeometry(mirrored({rows.left(), top, rows.width(), height}));
    };
    place(header_, rows.top(), header);
    place(controls_, rows.top() + header + wanted.spacing, controls);
    place(hints_, rows.bottom() + 1 - hints, hints);
    boardArea_->setGeometry(mirrored(board));
}

QRect ContentView::mirrored(const QRect& area) const {
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

void ContentView::placeBoard() {
    const QPoint origin = boardArea_->pos();
    const Painting::BoardGeometry board = fitBoard(boardArea_->rect());
    backdrop_.fit(size(), scale_, board.frame.translated(origin),
                  Garden::Contrast::shared().isHigh()
                      ? Painting::Backdrop::strokeOpacityInHighContrast
                      : Painting::Backdrop::strokeOpacityByDefault);
    boardArea_->placeBoard(board, origin, scale_);
}
