#pragma once

#include <QLineEdit>

#include "Garden/Widgets/ContentDensity.hpp"

/// The text field for the player's name: a faint plate with a mint edge. It keeps the beginning of
/// a text that is longer than a name, however it is entered. Its caret is mint and keeps clear of
/// the placeholder. The layout sets its width.
class NameField : public QLineEdit, public Garden::Scalable {
    Q_OBJECT

public:
    explicit NameField(QWidget* parent = nullptr);

    void setDensity(const Garden::Density& density) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setTextColours();
    [[nodiscard]] bool startsAtRight() const;
    void paintPlate();
    void paintPlaceholder();
    void paintCaret();

    Garden::Density density_;
    bool composing_ = false;
    bool caretHidden_ = false;
};
