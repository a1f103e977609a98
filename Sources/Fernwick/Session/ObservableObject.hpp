#pragma once

#include <QObject>

/// An object whose published properties announce each change just before it happens.
class ObservableObject : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// A published property is about to change. Read the new state on the next turn of the event
    /// loop; several changes in one turn then make one refresh.
    void objectWillChange();

    /// Whoever waits for the next turn to read the new state reads it now: something is about to
    /// rely on what the views show.
    void refreshDue();
};
