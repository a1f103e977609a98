#include "Garden/Widgets/Sheet.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace Garden {

namespace {

constexpr int padding = 32;
constexpr int spacing = 20;
constexpr double emblemSize = 28;
constexpr double titleSize = 30;
constexpr double lineSize = 12;
constexpr double cornerRadius = 22;
constexpr double edgeOpacity = 0.16;

}  // namespace

Sheet::Sheet(Icon emblem, const QString& title, const ContentSize& contents, QWidget* parent)
    : QWidget(parent),
      contents_(contents),
      column_(layOut<QVBoxLayout>(this, spacing, padding)),
      emblem_(new IconView(emblem, emblemSize, mint)) {
    setAccessibleRole(*this, QAccessible::Dialog);
    setAccessibleName(title);
    // Keeps the focus inside the sheet after a click between its controls.
    setFocusPolicy(Qt::ClickFocus);
    add(emblem_, Qt::AlignHCenter);
    add(new TrackedLabel(title, serif(titleSize, QFont::Normal), primaryText), Qt::AlignHCenter);
}

TrackedLabel* Sheet::addLine(const QString& text) {
    auto* line = new TrackedLabel(text, sans(lineSize, QFont::Normal), muted);
    add(line, Qt::AlignHCenter);
    return line;
}

void Sheet::add(QWidget* widget, Qt::Alignment alignment) {
    column_->addWidget(widget, 0, alignment);
}

void Sheet::complete() {
    auto* done = new GardenButton(tr("Done"));
    connect(done, &QAbstractButton::clicked, this, &Sheet::closed);
    add(done, Qt::AlignHCenter);
    density_ = new ContentDensity(*this);
}

QSize Sheet::fittedTo(const QSize& available) {
    const double textScale = TextScale::shared().factor();
    const Density density = densityFor(available, contents_, textScale);
    scale_ = density.scale;
    emblem_->setVisible(scale_ >= scaleForWidth(available.width(), contents_, textScale));
    density_->set(density);
    return {qRound(contents_.width * scale_),
            std::min(layout()->totalSizeHint().height(), available.height())};
}

void Sheet::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        Q_EMIT closed();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void Sheet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = cornerRadius * scale_;
    painter.fillPath(continuousRoundedRect(rect(), radius), night);
    painter.strokePath(continuousRoundedRect(inset(rect(), 0.5), radius),
                       QPen(withOpacity(mint, edgeOpacity), 1));
}

}  // namespace Garden
