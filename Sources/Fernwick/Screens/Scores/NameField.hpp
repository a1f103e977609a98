#pragma once

#include <QLineEdit>

/// The single-line field for the player's name: no system border, a faint plate with a mint edge.
/// Its size follows the font and the padding; its width is its container's to set.
class NameField : public QLineEdit {
    Q_OBJECT

public:
    explicit NameField(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setPlaceholderColour();
};
