#pragma once

#include <chrono>

/// Sets the date and time of this process, as a person or a time server would the machine's, for
/// as long as it lives. Clocks that only count on are left alone.
class WallClock {
public:
    explicit WallClock(std::chrono::seconds ahead);
    WallClock(const WallClock&) = delete;
    WallClock& operator=(const WallClock&) = delete;
    ~WallClock();
};
