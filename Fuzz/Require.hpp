#pragma once

#include <cstdio>
#include <cstdlib>

namespace SnakeCore {

/// Aborts if a property does not hold, so that libFuzzer saves the input.
inline void require(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "violated: %s\n", property);
        std::abort();
    }
}

}  // namespace SnakeCore
