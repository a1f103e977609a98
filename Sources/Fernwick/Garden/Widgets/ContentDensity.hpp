#pragma once

#include <QMargins>
#include <QSize>
#include <vector>

#include "Garden/Look/Density.hpp"

class QLayout;
class QSpacerItem;
class QWidget;

namespace Garden {

/// A widget that can draw its contents at another density.
class Scalable {
public:
    virtual void setDensity(const Density& density) = 0;

protected:
    ~Scalable() = default;
};

/// Applies a density to everything inside a widget: the spacing and margins of its layouts, and its
/// `Scalable` descendants.
class ContentDensity {
public:
    /// `root` has to outlive it.
    explicit ContentDensity(QWidget& root) : root_(root) {}

    /// The first density other than the default takes the spacing and margins that the layouts
    /// have then as those of full size.
    void set(const Density& density);

private:
    struct Air {
        QLayout* layout;
        QMargins margins;
        int spacing;
    };
    struct Space {
        QSpacerItem* item;
        QSize size;
    };

    void measure();
    void applyToLayouts(double factor);

    QWidget& root_;
    Density density_;
    std::vector<Air> air_;
    std::vector<Space> spaces_;
};

}  // namespace Garden
