#pragma once

#include <QMargins>
#include <QObject>
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
class ContentDensity : public QObject {
    Q_OBJECT

public:
    /// A child of `root`. Create it when the layouts of `root` are complete: it takes their spacing
    /// and margins as those of full size.
    explicit ContentDensity(QWidget& root);

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

    void applyToLayouts(double factor);

    QWidget& root_;
    Density density_;
    std::vector<Air> air_;
    std::vector<Space> spaces_;
};

}  // namespace Garden
