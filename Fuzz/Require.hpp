#pragma once

#include <cstdio>
#include <cstdlib>

namespace SnakeCore {

/// Stops the program at a broken promise, so that the fuzzer keeps the input.
inline void require(bool promise, const char* what) {
    if (!promise) {
        std::fprintf(stderr, "broken: %s\n", what);
        std::abort();
    }
}

}  // namespace SnakeCore
