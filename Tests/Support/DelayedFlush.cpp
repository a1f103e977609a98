#include <dlfcn.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <thread>

// A library for LD_PRELOAD that acts as a slow disk: each fsync() and fdatasync() takes
// FERNWICK_FLUSH_DELAY milliseconds longer.

namespace {

using Flush = int(int file);

int flushLater(int file, const char* function) {
    if (const char* const delay = std::getenv("FERNWICK_FLUSH_DELAY")) {
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(delay)));
    }
    return reinterpret_cast<Flush*>(::dlsym(RTLD_NEXT, function))(file);
}

}  // namespace

extern "C" {

int fsync(int file) {
    return flushLater(file, "fsync");
}

int fdatasync(int file) {
    return flushLater(file, "fdatasync");
}
}
