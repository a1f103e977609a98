#include "Fernwick/Desktop/OtherUsers.hpp"

#include <dlfcn.h>
#include <sys/socket.h>

namespace {

bool everybodyIsAnotherUser = false;

}  // namespace

OtherUsers::OtherUsers() {
    everybodyIsAnotherUser = true;
}

OtherUsers::~OtherUsers() {
    everybodyIsAnotherUser = false;
}

// Takes the place of the system's own, which comes next in the order of libraries.
extern "C" int getsockopt(int socket, int level, int name, void* value, socklen_t* size) noexcept {
    using Function = int(int, int, int, void*, socklen_t*);
    const auto next = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, "getsockopt"));
    const int result = next(socket, level, name, value, size);
    if (everybodyIsAnotherUser && result == 0 && level == SOL_SOCKET && name == SO_PEERCRED) {
        ++static_cast<ucred*>(value)->uid;
    }
    return result;
}
