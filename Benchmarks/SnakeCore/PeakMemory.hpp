#pragma once

#include <cstddef>

/// Peak heap usage, measured by replacing operator new and delete.
namespace PeakMemory {

/// Starts a new measurement, with the current usage as its baseline.
void reset();

/// The peak since `reset()`, in bytes above the usage at that time.
[[nodiscard]] std::size_t bytes();

}  // namespace PeakMemory
