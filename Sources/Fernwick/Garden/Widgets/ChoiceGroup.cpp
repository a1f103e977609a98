#include "Garden/Widgets/ChoiceGroup.hpp"

#include <QPainter>
#include <algorithm>

#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/ChoiceButton.hpp"
#include "Garden/Widgets/Layout.hpp"

namespace Garden {

namespace {

constexpr int groupPadding = 4;
constexpr double groupRadius = 15;
constexpr double groupOpacity = 0.035;

}  // namespace

ChoiceGroup::ChoiceGroup(const QStringList& choices, const QString& accessibleName, QWidget* parent)
    : QWidget(parent), radius_(groupRadius) {
    setAccessibleRole(*this, QAccessible::Grouping);
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = layOut<QHBoxLayout>(this, 0, groupPadding);
    for (int index = 0; index < choices.size(); ++index) {
        auto* button = new ChoiceButton(choices[index], this);
        connect(button, &ChoiceButton::clicked, this, [this, index] { Q_EMIT chosen(index); });
        connect(button, &ChoiceButton::arrowPressed, this, [this, index](int step) {
            if (ChoiceButton* neighbour = buttons_.value(index + step); neighbour != nullptr) {
                neighbour->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
                neighbour->click();
            }
        });
        row->addWidget(button);
        buttons_.append(button);
    }
}

void ChoiceGroup::setCurrent(int index) {
    current_ = index;
    for (int each = 0; each < buttons_.size(); ++each) {
        buttons_[each]->setChecked(each == index);
    }
}

void ChoiceGroup::setChoicesEnabled(bool enabled) {
    for (ChoiceButton* button : buttons_) {
        button->setEnabled(enabled);
    }
}

void ChoiceGroup::setDensity(const Density& density) {
    radius_ = groupRadius * std::max(1.0, density.scale);
    update();
}

void ChoiceGroup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = std::min(radius_, height() / 2.0);
    painter.fillPath(continuousRoundedRect(rect(), radius), withOpacity(Qt::white, groupOpacity));
}

}  // namespace Garden
