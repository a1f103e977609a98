#include "Screens/Main/Board.hpp"

#include <QPaintEvent>
#include <QPainter>

#include "Garden/Look/NumberText.hpp"
#include "Garden/Look/Palette.hpp"
#include "Painting/Board/IdlePicture.hpp"
#include "Painting/Ground/Backdrop.hpp"
#include "Screens/Main/BoardAccessible.hpp"
#include "Screens/Main/WidgetPixels.hpp"

namespace {

/// Of the blur while no run is moving, in points.
constexpr double idleSigma = 5;

}  // namespace

Board::Board(Backdrop& backdrop, QWidget* parent)
    : QWidget(parent), backdrop_(backdrop), game_(BoardGeometry::columns, BoardGeometry::rows) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    BoardAccessible::install();
    announceScore();
}

Board::~Board() = default;

BoardGeometry Board::fit(const QRectF& space) {
    return fitBoard(space);
}

void Board::setGame(const SnakeCore::Game& game) {
    if (game_ == game) {
        return;
    }
    const bool scored = game_.score() != game.score();
    game_ = game;
    if (scored) {
        announceScore();
    }
    idlePicture_ = {};
    if (picture_ && picture_->grid() == grid()) {
        const QRegion changed = toPoints(picture_->show(game));
        idle_ ? update() : update(changed);
    } else {
        update();
    }
}

void Board::setIdle(bool idle) {
    if (idle != idle_) {
        idle_ = idle;
        idlePicture_ = {};
        update();
    }
}

void Board::setScrim(double opacity) {
    if (opacity != scrim_) {
        scrim_ = opacity;
        update();
    }
}

void Board::paintEvent(QPaintEvent* event) {
    prepareEdge();
    preparePicture();
    QPainter painter(this);
    const WidgetPixels pixels(painter, *this);
    const QColor scrim = Garden::withOpacity(Qt::black, scrim_);
    for (const QRect& part : event->region()) {
        const QRect area = pixels.of(part);
        // The painter's clip is the whole region; copying is fastest within a clip of one
        // rectangle.
        painter.setClipRect(area);
        if (idle_) {
            painter.drawImage(area.topLeft(), idlePicture_, area);
        } else {
            picture_->paint(painter, area);
        }
        if (scrim_ > 0) {
            painter.fillRect(area, scrim);
        }
        edge_.paint(painter, area);
    }
}

BoardGeometry Board::geometryInWindow() const {
    BoardGeometry geometry = fit(parentWidget()->rect());
    geometry.frame.translate(parentWidget()->mapTo(window(), QPoint()));
    return geometry;
}

PixelGrid Board::grid() const {
    const BoardGeometry geometry = geometryInWindow();
    const double scale = devicePixelRatioF();
    const QRect pixels = WidgetPixels::inWindow(*this);
    return {pixels.size(),
            geometry.frame.topLeft() * scale - pixels.topLeft(),
            geometry.cell * scale,
            scale,
            static_cast<int>(game_.width()),
            static_cast<int>(game_.height())};
}

QRegion Board::toPoints(const QRegion& pixels) const {
    const double scale = devicePixelRatioF();
    const QPoint first = WidgetPixels::inWindow(*this).topLeft();
    const QPoint here = mapTo(window(), QPoint());
    QRegion points;
    for (const QRect& part : pixels) {
        const QRectF inWindow = part.translated(first);
        points += QRectF(inWindow.topLeft() / scale, inWindow.size() / scale)
                      .toAlignedRect()
                      .translated(-here);
    }
    return points;
}

void Board::prepareEdge() {
    const double scale = devicePixelRatioF();
    const QRectF frame = geometryInWindow().frame;
    backdrop_.fit(window()->size(), scale, frame);
    const QRect place = WidgetPixels::inWindow(*this);
    if (backdrop_.revision() != edgeGround_ || place != edgePlace_) {
        const QRectF here(frame.topLeft() * scale - place.topLeft(), frame.size() * scale);
        edge_ = FrameEdge(backdrop_, place, FrameShape(here, scale));
        edgeGround_ = backdrop_.revision();
        edgePlace_ = place;
    }
}

void Board::preparePicture() {
    if (!picture_ || picture_->grid() != grid()) {
        picture_ = std::make_unique<BoardPicture>(grid());
        picture_->show(game_);
        idlePicture_ = {};
    }
    if (idle_ && idlePicture_.isNull()) {
        idlePicture_ = idlePicture(picture_->image(), idleSigma * devicePixelRatioF());
    }
}

void Board::announceScore() {
    //: Read aloud for the picture of the board. %lld is the score; it has to stay.
    const QString label = tr("Snake board. Score %lld. Use arrow keys or W A S D to move.");
    setAccessibleName(Garden::withNumber(label, game_.score()));
}
