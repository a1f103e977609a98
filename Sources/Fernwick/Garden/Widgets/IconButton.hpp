#pragma once

#include "Garden/Look/Icons.hpp"
#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// A button that shows an icon in `muted`, 26 × 26 points or larger: it does not shrink, so that it
/// stays easy to click. Its help text is both its tooltip and its accessible name.
class IconButton : public QuietButton {
    Q_OBJECT

public:
    IconButton(Icon icon, const QString& helpText, QWidget* parent = nullptr);

    [[nodiscard]] Icon icon() const { return icon_; }
    void setIcon(Icon icon);

    void setDensity(const Density& density) override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Icon icon_;
    // At least 1.
    double scale_ = 1;
};

}  // namespace Garden
