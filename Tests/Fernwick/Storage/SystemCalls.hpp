#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Replaces libc's file functions in the test program, to record the calls and let each of them
/// fail. Only calls between `watch` and `unwatch` count; for programs with one thread.
namespace SystemCalls {

enum class Outcome {
    normal,
    fails,        ///< sets errno to `Plan::error` and does nothing
    shortWrite,   ///< write() writes half of the bytes
    exitsBefore,  ///< the process exits instead of making the call
    exitsAfter,   ///< the process exits after the call
};

/// The outcome of call number `call`, counted from 0, and with `repeats` of all later calls of the
/// same function.
struct Plan {
    std::size_t call = 0;
    Outcome outcome = Outcome::normal;
    int error = 0;
    bool repeats = false;
};

void watch(const Plan& plan);

/// The names of the functions that were called, in order.
std::vector<std::string> unwatch();

}  // namespace SystemCalls
