#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Replaces libc's file functions in the test program, to record the calls and let each of them
/// fail. Only calls between `watch` and `unwatch` count, and only one thread may make them.
namespace SystemCalls {

enum class Outcome {
    normal,
    fails,        ///< sets errno to `Plan::error` and does nothing
    shortWrite,   ///< write() writes half of the bytes
    exitsBefore,  ///< the process exits instead of making the call
    exitsAfter,   ///< the process exits after the call
    blocks,       ///< waits for `release`, as on a slow disk; then fails if there is an error
};

/// The outcome of call number `call`, counted from 0, and with `repeats` of all later calls of the
/// same function.
struct Plan {
    std::size_t call = 0;
    Outcome outcome = Outcome::normal;
    int error = 0;
    bool repeats = false;
};

/// A call that changed the disk or flushed it, and succeeded.
struct Effect {
    enum class Kind { createFile, createFolder, write, sync, rename, link, unlink };
    Kind kind;
    std::string path;         ///< of the file or folder, as it was when it was opened
    std::string target = {};  ///< the new path, for `rename` and `link`
    std::string bytes = {};   ///< for `write`, which appends
};

void watch(const Plan& plan);

/// Waits until a call blocks.
void waitUntilBlocked();
/// Lets the call that blocks, and all later ones, go on.
void release();

/// The effects of the calls between `watch` and `unwatch`, in order.
const std::vector<Effect>& effects();

/// The names of the functions that were called, in order.
std::vector<std::string> unwatch();

}  // namespace SystemCalls
