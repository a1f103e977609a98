#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QWidget>

namespace Garden {

/// One line of text, in the font given or as near to it as its script can bear. It is as wide as
/// its letters: Qt's font metrics count the letter spacing after the last letter too, which would
/// push centred and right-aligned lines off by half or all of it. Given less room, it ends in "…".
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
    /// What the letters need besides the line of the font: those of a face that is called to help
    /// may stand higher and reach lower.
    struct Excess {
        double above = 0;
        double below = 0;
    };
    void fitToText();

    QString text_;
    QFont font_;
    QColor colour_;
    // The room below the line for its deepest letters.
    double overhang_;
    Excess excess_;
};

}  // namespace Garden
