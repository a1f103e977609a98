#pragma once

#include <chrono>
#include <future>

/// The services of the desktop that hang. While the window is made, the toolkit waits for the
/// answers of some: of the one for menus outside of windows and of those for assistive programs.
/// One that hangs would keep the window away for half a minute or for ever.
class SilentServices {
public:
    /// Begins to ask them, in a thread of its own; starts none. Needs the application object.
    explicit SilentServices(std::chrono::milliseconds patience = std::chrono::seconds(2));

    /// Waits for their answers, and has the toolkit go without those that have not answered within
    /// the patience. To be called before the first window is made.
    void leaveAlone();

private:
    struct Found {
        bool menus = false;
        bool assistance = false;
    };

    static Found find(std::chrono::milliseconds patience);

    std::future<Found> found_;
};
