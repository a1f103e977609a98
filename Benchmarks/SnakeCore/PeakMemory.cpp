#include "SnakeCore/PeakMemory.hpp"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

// Not atomic: the benchmarks have a single thread.
std::size_t inUse = 0;
std::size_t atReset = 0;
std::size_t peak = 0;

}  // namespace

namespace PeakMemory {

void reset() {
    peak = atReset = inUse;
}

std::size_t bytes() {
    return peak - atReset;
}

}  // namespace PeakMemory

void* operator new(std::size_t size) {
    void* const block = std::malloc(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    inUse += malloc_usable_size(block);
    peak = std::max(peak, inUse);
    return block;
}

void operator delete(void* block) noexcept {
    inUse -= malloc_usable_size(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}
