#include "Session/ChangeObserver.hpp"

#include <utility>

#include "Session/MainThread.hpp"
#include "Session/ObservableObject.hpp"

ChangeObserver::ChangeObserver(ObservableObject& observed, std::function<void()> refresh)
    : refresh_(std::move(refresh)) {
    connect(&observed, &ObservableObject::objectWillChange, this, &ChangeObserver::request);
    connect(&observed, &ObservableObject::refreshDue, this, &ChangeObserver::deliver);
}

void ChangeObserver::request() {
    assertMainThread();
    if (requested_) {
        return;
    }
    requested_ = true;
    QMetaObject::invokeMethod(this, &ChangeObserver::deliver, Qt::QueuedConnection);
}

void ChangeObserver::deliver() {
    if (requested_) {
        requested_ = false;
        refresh_();
    }
}
