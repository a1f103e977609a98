#pragma once

#include <QColor>
#include <QWidget>

#include "Garden/Look/Icons.hpp"
#include "Garden/Widgets/ContentDensity.hpp"

namespace Garden {

/// A decorative icon in one colour, `size` points square. It has no accessible name.
class IconView : public QWidget, public Scalable {
    Q_OBJECT

public:
    IconView(Icon icon, double size, const QColor& colour, QWidget* parent = nullptr);

    [[nodiscard]] Icon icon() const { return icon_; }
    void setIcon(Icon icon);
    [[nodiscard]] QColor colour() const { return colour_; }

    void setDensity(const Density& density) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Icon icon_;
    double fullSize_;
    double size_;
    QColor colour_;
};

}  // namespace Garden
