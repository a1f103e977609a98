#pragma once

#include <QWidget>

class NameField;
class Session;

namespace Garden {
class GardenButton;
}

/// The part of the game-over card that asks for a name: the name field, "Save score" and "Skip
/// saving". When it is shown, the field takes the keyboard focus and offers the last name selected,
/// so that typing replaces it.
class NameEntry : public QWidget {
    Q_OBJECT

public:
    explicit NameEntry(Session& session, QWidget* parent = nullptr);

    /// Shows the session's name and whether it can be saved.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;

private:
    Session& session_;
    NameField* field_;
    Garden::GardenButton* save_;
};
