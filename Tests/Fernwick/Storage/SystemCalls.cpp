#include "Fernwick/Storage/SystemCalls.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {

using SystemCalls::Outcome;

bool watched = false;
SystemCalls::Plan plan;
std::vector<std::string> calls;

Outcome outcomeOf(const char* name) {
    const std::size_t number = calls.size();
    calls.emplace_back(name);
    const bool planned = number == plan.call ||
                         (plan.repeats && number > plan.call && calls[number] == calls[plan.call]);
    return planned ? plan.outcome : Outcome::normal;
}

/// Calls the function of libc, or does what the plan says instead.
template <typename Function, typename... Arguments>
auto call(const char* name, Arguments... arguments) {
    const auto next = reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
    using Result = decltype(next(arguments...));
    if (!watched) {
        return next(arguments...);
    }
    switch (outcomeOf(name)) {
        case Outcome::fails:
            errno = plan.error;
            return static_cast<Result>(-1);
        case Outcome::exitsBefore:
            ::_exit(1);
        case Outcome::exitsAfter:
            static_cast<void>(next(arguments...));
            ::_exit(1);
        case Outcome::shortWrite:
        case Outcome::normal:
            break;
    }
    return next(arguments...);
}

}  // namespace

void SystemCalls::watch(const Plan& newPlan) {
    plan = newPlan;
    calls.clear();
    watched = true;
}

std::vector<std::string> SystemCalls::unwatch() {
    watched = false;
    return calls;
}

extern "C" {

int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t);
        va_end(arguments);
    }
    return call<int(const char*, int, ...)>("open", path, flags, mode);
}

int mkostemp(char* pattern, int flags) {
    return call<int(char*, int)>("mkostemp", pattern, flags);
}

ssize_t read(int file, void* bytes, std::size_t size) {
    return call<ssize_t(int, void*, std::size_t)>("read", file, bytes, size);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    const bool halved = watched && plan.outcome == Outcome::shortWrite && size > 1 &&
                        (calls.size() == plan.call || plan.repeats);
    return call<ssize_t(int, const void*, std::size_t)>("write", file, bytes,
                                                        halved ? size / 2 : size);
}

int fsync(int file) {
    return call<int(int)>("fsync", file);
}

int flock(int file, int operation) noexcept {
    return call<int(int, int)>("flock", file, operation);
}

int rename(const char* from, const char* to) noexcept {
    return call<int(const char*, const char*)>("rename", from, to);
}

int link(const char* from, const char* to) noexcept {
    return call<int(const char*, const char*)>("link", from, to);
}

int unlink(const char* path) noexcept {
    return call<int(const char*)>("unlink", path);
}

int mkdir(const char* path, mode_t mode) noexcept {
    return call<int(const char*, mode_t)>("mkdir", path, mode);
}

int close(int file) {
    const int result = call<int(int)>("close", file);
    if (watched && result != 0) {
        // On Linux, a close() that fails has closed the file all the same.
        watched = false;
        close(file);
        watched = true;
        errno = plan.error;
    }
    return result;
}

}  // extern "C"
