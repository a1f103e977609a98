#pragma once

#include <QObject>
#include <functional>

class ObservableObject;

/// Calls `refresh` on the turn of the event loop after an object announced changes: once, however
/// many changes there were. A view keeps one as a member and destroys it with itself.
class ChangeObserver : public QObject {
    Q_OBJECT

public:
    ChangeObserver(ObservableObject& observed, std::function<void()> refresh);

private:
    void request();
    void deliver();

    std::function<void()> refresh_;
    bool requested_ = false;
};
