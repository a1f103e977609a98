#include "Garden/Widgets/KeyCap.hpp"

#include <QHBoxLayout>
#include <QPainter>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/Panel.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace Garden {

namespace {

constexpr double nameSize = 11;
constexpr double nameOpacity = 0.8;
constexpr QMargins padding(7, 3, 7, 3);
// Of the height.
constexpr double cornerRadius = 0.28;

}  // namespace

KeyCap::KeyCap(const QString& name, QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(padding);
    row->addWidget(
        new TrackedLabel(name, mono(nameSize, QFont::Normal), withOpacity(mint, nameOpacity)));
}

void KeyCap::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), cornerRadius * height());
}

}  // namespace Garden
