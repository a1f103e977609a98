#include "Fernwick/Session/WallClock.hpp"

#include <sys/syscall.h>
#include <unistd.h>

#include <ctime>

namespace {

std::chrono::seconds offset{0};

}  // namespace

WallClock::WallClock(std::chrono::seconds shift) {
    offset = shift;
}

WallClock::~WallClock() {
    offset = std::chrono::seconds(0);
}

// Interposes the C library's function, which all std::chrono and Qt clocks call.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    const auto result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) {
        time->tv_sec += offset.count();
    }
    return result;
}
