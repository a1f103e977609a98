#pragma once

#include <cstdlib>

/// The number in a variable of the environment: how far a test goes that can go far. `otherwise`
/// where it is not set.
[[nodiscard]] inline double environmentNumber(const char* name, double otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtod(text, nullptr);
}
