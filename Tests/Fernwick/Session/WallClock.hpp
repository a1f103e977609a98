#pragma once

#include <chrono>

/// Shifts the wall clock (CLOCK_REALTIME) of this process for the lifetime of the object. Monotonic
/// clocks are not affected.
class WallClock {
public:
    explicit WallClock(std::chrono::seconds shift);
    WallClock(const WallClock&) = delete;
    WallClock& operator=(const WallClock&) = delete;
    ~WallClock();
};
