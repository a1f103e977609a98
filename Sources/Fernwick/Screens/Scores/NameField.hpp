#pragma once

#include <QLineEdit>

/// The text field for the player's name: a faint plate with a mint edge. It keeps the beginning of
/// a text that is longer than a name, however it is entered. Its height follows the font; the
/// layout sets its width.
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
