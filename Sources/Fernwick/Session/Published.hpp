#pragma once

#include <utility>

#include "Session/ObservableObject.hpp"

/// A property of an observable object: reading is free, every assignment first announces
/// `objectWillChange` and then stores, and nothing else happens.
template <typename T>
class Published {
public:
    Published(ObservableObject& owner, T initial) : owner_(owner), value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    [[nodiscard]] const T& get() const { return value_; }
    // Reads like the plain member it stands for.
    operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)
    const T* operator->() const { return &value_; }

    Published& operator=(T value) {
        Q_EMIT owner_.objectWillChange();
        value_ = std::move(value);
        return *this;
    }

    /// Changes the value in place, announced once. Returns what `change` returns.
    template <typename Change>
    auto mutate(Change&& change) {
        Q_EMIT owner_.objectWillChange();
        return std::forward<Change>(change)(value_);
    }

private:
    ObservableObject& owner_;
    T value_;
};
