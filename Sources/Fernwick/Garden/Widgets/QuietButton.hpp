#pragma once

#include <QAbstractButton>
#include <QColor>

#include "Garden/Widgets/ContentDensity.hpp"
#include "Garden/Widgets/FocusRing.hpp"

namespace Garden {

/// A button without a fill: only its text, in `muted`. Base class of all buttons: it takes the
/// focus by Tab only and shows a focus ring for it, is clicked by Return and Enter as well as
/// Space, and has a pointing-hand cursor while enabled.
class QuietButton : public QAbstractButton, public Scalable {
    Q_OBJECT

public:
    /// A button as large as `text` in `font` plus `padding` in points: its width at the left and at
    /// the right, its height above and below. The default leaves room for the focus ring and makes
    /// a larger target to click than the text alone.
    QuietButton(const QString& text, const QFont& font, QSize padding = {8, 3},
                QWidget* parent = nullptr);

    void setDensity(const Density& density) override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// Factor of the lengths that the button paints.
    [[nodiscard]] double scale() const { return density_.scale; }
    /// The space around the text, in points. Less air makes it narrower, but not lower: the button
    /// stays easy to click.
    [[nodiscard]] QSize padding() const;
    [[nodiscard]] bool hovered() const;
    [[nodiscard]] const FocusRing& focusRing() const { return focusRing_; }
    /// The colour of text and icons outside a fill: `muted`, brighter while hovered, translucent
    /// while pressed or disabled.
    [[nodiscard]] QColor quietColour() const;

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QFont fullFont_;
    QSize fullPadding_;
    Density density_;
    FocusRing focusRing_;
};

}  // namespace Garden
