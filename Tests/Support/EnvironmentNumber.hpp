#pragma once

#include <cstdlib>

/// The number in an environment variable, `otherwise` when it is unset. For the length of tests.
[[nodiscard]] inline double environmentNumber(const char* name, double otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtod(text, nullptr);
}
