#include "Garden/Widgets/ContentDensity.hpp"

#include <QLayout>
#include <QWidget>

namespace Garden {

ContentDensity::ContentDensity(QWidget& root) : QObject(&root), root_(root) {
    for (QLayout* layout : root.findChildren<QLayout*>()) {
        air_.push_back({layout, layout->contentsMargins(), layout->spacing()});
        for (int index = 0; index < layout->count(); ++index) {
            if (QSpacerItem* spacer = layout->itemAt(index)->spacerItem(); spacer != nullptr) {
                spaces_.push_back({spacer, spacer->sizeHint()});
            }
        }
    }
}

void ContentDensity::set(const Density& density) {
    if (density == density_) {
        return;
    }
    density_ = density;
    applyToLayouts(density.air * density.scale);
    for (QWidget* widget : root_.findChildren<QWidget*>()) {
        if (auto* scalable = dynamic_cast<Scalable*>(widget); scalable != nullptr) {
            scalable->setDensity(density);
        }
        // Qt caches size hints until the event loop runs.
        widget->updateGeometry();
    }
    root_.updateGeometry();
}

void ContentDensity::applyToLayouts(double factor) {
    for (const Space& space : spaces_) {
        const QSizePolicy policy = space.item->sizePolicy();
        space.item->changeSize(scaled(space.size.width(), factor),
                               scaled(space.size.height(), factor), policy.horizontalPolicy(),
                               policy.verticalPolicy());
    }
    for (const Air& air : air_) {
        const QMargins& margins = air.margins;
        air.layout->setContentsMargins(
            scaled(margins.left(), factor), scaled(margins.top(), factor),
            scaled(margins.right(), factor), scaled(margins.bottom(), factor));
        air.layout->setSpacing(scaled(air.spacing, factor));
        air.layout->invalidate();
    }
}

}  // namespace Garden
