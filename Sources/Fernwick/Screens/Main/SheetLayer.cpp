#include "Screens/Main/SheetLayer.hpp"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "Garden/Look/Motion.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/FocusRing.hpp"
#include "Garden/Widgets/RiseEffect.hpp"
#include "Screens/Help/AboutView.hpp"
#include "Screens/Help/KeysView.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Session/Session.hpp"

namespace {

// The least distance of the sheet from the edges of the window, in points.
constexpr int margin = 8;
// The title band above it.
constexpr int titleBand = 46;

// Without the window's background, which would show in the rounded corners.
QPixmap pictureOf(QWidget& sheet) {
    QPixmap picture(sheet.size() * sheet.devicePixelRatioF());
    picture.setDevicePixelRatio(sheet.devicePixelRatioF());
    picture.fill(Qt::transparent);
    sheet.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

}  // namespace

SheetLayer::SheetLayer(Session& session, QWidget* parent)
    : QWidget(parent), session_(session), presence_(this) {
    hide();
    presence_.setStartValue(0.0);
    presence_.setEndValue(1.0);
    presence_.setDuration(Garden::sheetDuration);
    connect(&presence_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        if (effect_ != nullptr) {
            effect_->setPresence(value.toDouble());
        }
        Q_EMIT dimmed(scrim());
        update();
    });
    connect(&presence_, &QVariantAnimation::finished, this, &SheetLayer::finish);
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this,
            &SheetLayer::placeSheet);
    connect(&session_, &Session::changed, this, &SheetLayer::refresh);
    refresh();
}

void SheetLayer::refresh() {
    if (session_.sheet() == shown_) {
        return;
    }
    if (shown_ != Session::Sheet::none) {
        dismiss();
    }
    shown_ = session_.sheet();
    if (shown_ != Session::Sheet::none) {
        present();
    }
}

Garden::Sheet* SheetLayer::makeSheet() {
    switch (shown_) {
        case Session::Sheet::scores:
            return new HighScoresView(session_, this);
        case Session::Sheet::keys:
            return new KeysView(this);
        case Session::Sheet::about:
            return new AboutView(this);
        case Session::Sheet::none:
            break;
    }
    return nullptr;
}

void SheetLayer::present() {
    // Created on first use, so that it does not delay the first frame.
    Garden::Sheet*& sheet = sheets_[shown_];
    if (sheet == nullptr) {
        sheet = makeSheet();
        connect(sheet, &Garden::Sheet::closed, &session_, &Session::closeSheet);
    }
    sheet_ = sheet;
    focusBefore_ = window()->focusWidget();
    picture_ = {};
    placeSheet();
    showSheet(true);
    effect_ = new Garden::RiseEffect;
    effect_->setPresence(presence_.currentValue().toDouble());
    sheet_->setGraphicsEffect(effect_);
    animate(QAbstractAnimation::Forward);
    sheet_->setFocus(Qt::PopupFocusReason);
}

void SheetLayer::dismiss() {
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    Garden::releaseFocus(*this);
    sheet_->setGraphicsEffect(nullptr);
    picture_ = pictureOf(*sheet_);
    showSheet(false);
    animate(QAbstractAnimation::Backward);
    if (hadFocus && !focusBefore_.isNull() && focusBefore_->isVisible()) {
        focusBefore_->setFocus(Qt::PopupFocusReason);
    }
}

void SheetLayer::placeSheet() {
    if (sheet_ == nullptr) {
        return;
    }
    const QSize room = size() - QSize(2 * margin, titleBand + margin);
    QRect sheetRect(QPoint(), sheet_->fittedTo(room.expandedTo({0, 0})));
    sheetRect.moveCenter(rect().center());
    sheetRect.moveTop(std::max(titleBand, sheetRect.top()));
    sheet_->setGeometry(sheetRect);
}

void SheetLayer::showSheet(bool shown) {
    // Hiding and showing the layer makes Qt look up anew which widget the pointer is over.
    hide();
    setAttribute(Qt::WA_TransparentForMouseEvents, !shown);
    sheet_->setVisible(shown);
    show();
    raise();
}

void SheetLayer::animate(QAbstractAnimation::Direction direction) {
    presence_.setDirection(direction);
    if (parentWidget()->isVisible() && !Garden::reducedMotion()) {
        // A running animation reverses from its current value.
        if (presence_.state() == QAbstractAnimation::Stopped) {
            // Backwards, the curve of the appearance would end abruptly.
            presence_.setEasingCurve(direction == QAbstractAnimation::Forward
                                         ? QEasingCurve::OutCubic
                                         : QEasingCurve::InOutQuad);
            presence_.start();
        }
    } else {
        presence_.stop();
        presence_.setCurrentTime(direction == QAbstractAnimation::Forward ? presence_.duration()
                                                                          : 0);
        finish();
    }
}

void SheetLayer::finish() {
    if (presence_.direction() == QAbstractAnimation::Forward) {
        sheet_->setGraphicsEffect(nullptr);
    } else {
        picture_ = {};
        hide();
    }
}

bool SheetLayer::focusNextPrevChild(bool next) {
    // Follows the focus chain to the next control inside the sheet.
    QWidget* const start = window()->focusWidget();
    QWidget* candidate = start;
    do {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (sheet_->isAncestorOf(candidate) && candidate->isVisible() && candidate->isEnabled() &&
            (candidate->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (candidate != start);
    return false;
}

double SheetLayer::scrim() const {
    return scrimOpacity * presence_.currentValue().toDouble();
}

void SheetLayer::showEvent(QShowEvent*) {
    // A sheet that is open before the window is shown has not been animated.
    Q_EMIT dimmed(scrim());
}

void SheetLayer::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void SheetLayer::paintEvent(QPaintEvent*) {
    const double presence = presence_.currentValue().toDouble();
    QPainter painter(this);
    painter.fillRect(rect(), Garden::withOpacity(Qt::black, scrim()));
    if (!picture_.isNull()) {
        painter.setOpacity(presence);
        painter.drawPixmap(sheet_->pos() + QPointF(0, Garden::RiseEffect::shift(presence)),
                           picture_);
    }
}

void SheetLayer::resizeEvent(QResizeEvent*) {
    placeSheet();
    // The snapshot would no longer be centred.
    if (!picture_.isNull()) {
        presence_.setCurrentTime(0);
    }
}
