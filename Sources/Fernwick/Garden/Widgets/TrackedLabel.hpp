#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

namespace Garden {

/// Lines of text, usually one, in a font with letter spacing, adapted to the script of the text by
/// `fittedTo`.
/// Its width excludes the letter spacing that Qt adds after the last letter, which would shift
/// centred and right-aligned text. Text that does not fit is elided. The text is also its
/// accessible name.
class TrackedLabel : public QWidget, public Scalable {
    Q_OBJECT

public:
    TrackedLabel(const QString& text, const QFont& font, const QColor& colour,
                 QWidget* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);
    [[nodiscard]] QColor colour() const { return colour_; }
    /// Breaks a text that is wider than `width` points into lines of about the same width. 0, the
    /// default, keeps it on one line.
    void wrapAt(int width, Qt::Alignment alignment = Qt::AlignLeft);

    void setDensity(const Density& density) override;

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
    void measureExcess();
    void breakLines();
    [[nodiscard]] int widthOf(const QString& line) const;
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] int leading() const;

    QString text_;
    QFont font_;
    QColor colour_;
    double scale_ = 1;
    int wrapWidth_ = 0;
    Qt::Alignment alignment_ = Qt::AlignLeft;
    QStringList lines_;
    // How far Latin descenders extend below the descent of the font, in points.
    double overhang_ = 0;
    Excess excess_;
};

}  // namespace Garden
