#pragma once

#include <cstddef>

/// The heap of this program, counted in its allocation functions.
namespace PeakMemory {

/// Begins anew: the peak is what is in use now.
void reset();

/// The most bytes in use at one time since `reset()`, beyond what was in use then.
[[nodiscard]] std::size_t bytes();

}  // namespace PeakMemory
