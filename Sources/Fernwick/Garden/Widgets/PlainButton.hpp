#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// A button that is nothing but its text, in `muted`.
class PlainButton : public QuietButton {
    Q_OBJECT

public:
    PlainButton(const QString& text, const QFont& font, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
