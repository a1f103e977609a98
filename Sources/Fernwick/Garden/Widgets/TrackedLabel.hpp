#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QWidget>

namespace Garden {

/// One line of text in a font with letter spacing, adapted to the script of the text by `fittedTo`.
/// Its width excludes the letter spacing that Qt adds after the last letter, which would shift
/// centred and right-aligned text. Text that does not fit is elided. The text is also its
/// accessible name.
class TrackedLabel : public QWidget {
    Q_OBJECT

public:
    TrackedLabel(const QString& text, const QFont& font, const QColor& colour,
                 QWidget* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);
    [[nodiscard]] QColor colour() const { return colour_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// How far the glyphs extend beyond the ascent and descent of the font, in points: glyphs from
    /// fallback fonts may be taller.
    struct Excess {
        double above = 0;
        double below = 0;
    };
    void fitToText();

    QString text_;
    QFont font_;
    QColor colour_;
    // How far Latin descenders extend below the descent of the font, in points.
    double overhang_;
    Excess excess_;
};

}  // namespace Garden
