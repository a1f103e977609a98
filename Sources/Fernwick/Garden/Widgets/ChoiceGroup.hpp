#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

namespace Garden {

class ChoiceButton;

/// A row of words of which one is current. Pressing a word, or the left and right arrows on it,
/// asks for another; the owner answers with `setCurrent`.
class ChoiceGroup : public QWidget {
    Q_OBJECT

public:
    ChoiceGroup(const QStringList& choices, const QString& accessibleName,
                QWidget* parent = nullptr);

    /// Index of the current choice, from 0; -1 before the first `setCurrent`.
    [[nodiscard]] int current() const { return current_; }
    void setCurrent(int index);

    void setChoicesEnabled(bool enabled);

Q_SIGNALS:
    /// The player pressed this choice, current or not.
    void chosen(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void chooseNeighbour(int index, int step);

    QList<ChoiceButton*> buttons_;
    int current_ = -1;
};

}  // namespace Garden
