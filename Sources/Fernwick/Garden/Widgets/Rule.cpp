#include "Garden/Widgets/Rule.hpp"

#include <QPainter>

#include "Garden/Look/Palette.hpp"

namespace Garden {

namespace {

constexpr QSize ruleSize(1, 36);
constexpr double opacity = 0.25;

}  // namespace

Rule::Rule(QWidget* parent) : QWidget(parent) {
    setFixedSize(ruleSize);
}

void Rule::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), withOpacity(muted, opacity));
}

}  // namespace Garden
