#include "Fernwick/Desktop/OtherUsers.hpp"

#include <dlfcn.h>
#include <sys/socket.h>

namespace {

bool reportsOtherUser = false;

}  // namespace

OtherUsers::OtherUsers() {
    reportsOtherUser = true;
}

OtherUsers::~OtherUsers() {
    reportsOtherUser = false;
}

// Replaces the function of libc, which dlsym(RTLD_NEXT) finds.
extern "C" int getsockopt(int socket, int level, int name, void* value, socklen_t* size) noexcept {
    using Function = int(int, int, int, void*, socklen_t*);
    const auto next = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, "getsockopt"));
    const int result = next(socket, level, name, value, size);
    if (reportsOtherUser && result == 0 && level == SOL_SOCKET && name == SO_PEERCRED) {
        ++static_cast<ucred*>(value)->uid;
    }
    return result;
}
