#pragma once

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

/// Gives memory that is free back to the system, where the allocator would keep it: making the
/// window takes several megabytes that are never needed again.
inline void trimHeap() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}
