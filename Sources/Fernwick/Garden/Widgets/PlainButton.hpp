#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// A button without a fill: only its text, in `muted`.
class PlainButton : public QuietButton {
    Q_OBJECT

public:
    PlainButton(const QString& text, const QFont& font, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
