#include "Session/ChangeObserver.hpp"

#include <utility>

#include "Session/MainThread.hpp"
#include "Session/ObservableObject.hpp"

ChangeObserver::ChangeObserver(ObservableObject& observed, std::function<void()> refresh)
    : refresh_(std::move(refresh)) {
    connect(&observed, &ObservableObject::objectWillChange, this, &ChangeObserver::request);
}

void ChangeObserver::request() {
    assertMainThread();
    if (requested_) {
        return;
    }
    requested_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            requested_ = false;
            refresh_();
        },
        Qt::QueuedConnection);
}
