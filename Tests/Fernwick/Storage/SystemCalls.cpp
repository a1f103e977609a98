#include "Fernwick/Storage/SystemCalls.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>

namespace {

using SystemCalls::Effect;
using SystemCalls::Outcome;

std::atomic<bool> watched = false;
std::map<int, std::string> openPaths;  // of the one thread that makes the calls

std::mutex mutex;  // guards all that follows
std::condition_variable changed;
SystemCalls::Plan plan;
std::vector<std::string> calls;
std::vector<Effect> recorded;
bool blocked = false;
bool released = false;

void block() {
    std::unique_lock lock(mutex);
    blocked = true;
    changed.notify_all();
    changed.wait(lock, [] { return released; });
}

void record(const Effect& effect) {
    const std::lock_guard lock(mutex);
    if (watched) {
        recorded.push_back(effect);
    }
}

Outcome outcomeOf(const char* name) {
    const std::lock_guard lock(mutex);
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
        case Outcome::blocks:
            block();
            if (plan.error != 0) {
                errno = plan.error;
                return static_cast<Result>(-1);
            }
            break;
        case Outcome::shortWrite:
        case Outcome::normal:
            break;
    }
    return next(arguments...);
}

}  // namespace

void SystemCalls::watch(const Plan& newPlan) {
    const std::lock_guard lock(mutex);
    plan = newPlan;
    calls.clear();
    recorded.clear();
    openPaths.clear();
    blocked = released = false;
    watched = true;
}

std::vector<std::string> SystemCalls::unwatch() {
    const std::lock_guard lock(mutex);
    watched = false;
    return calls;
}

void SystemCalls::waitUntilBlocked() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [] { return blocked; });
}

void SystemCalls::release() {
    const std::lock_guard lock(mutex);
    released = true;
    changed.notify_all();
}

const std::vector<Effect>& SystemCalls::effects() {
    return recorded;
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
    const bool exists = !watched || ::access(path, F_OK) == 0;
    const int file = call<int(const char*, int, ...)>("open", path, flags, mode);
    if (watched && file >= 0) {
        openPaths[file] = path;
        if (!exists) {
            record({Effect::Kind::createFile, path});
        }
    }
    return file;
}

int mkostemp(char* pattern, int flags) {
    const int file = call<int(char*, int)>("mkostemp", pattern, flags);
    if (watched && file >= 0) {
        openPaths[file] = pattern;
        record({Effect::Kind::createFile, pattern});
    }
    return file;
}

ssize_t read(int file, void* bytes, std::size_t size) {
    return call<ssize_t(int, void*, std::size_t)>("read", file, bytes, size);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    const bool halved = watched && plan.outcome == Outcome::shortWrite && size > 1 &&
                        (calls.size() == plan.call || plan.repeats);
    const ssize_t written = call<ssize_t(int, const void*, std::size_t)>("write", file, bytes,
                                                                         halved ? size / 2 : size);
    if (watched && written > 0) {
        record({.kind = Effect::Kind::write,
                .path = openPaths[file],
                .bytes = {static_cast<const char*>(bytes), static_cast<std::size_t>(written)}});
    }
    return written;
}

int fsync(int file) {
    const int result = call<int(int)>("fsync", file);
    if (result == 0) {
        record({Effect::Kind::sync, openPaths[file]});
    }
    return result;
}

int flock(int file, int operation) noexcept {
    return call<int(int, int)>("flock", file, operation);
}

int rename(const char* from, const char* to) noexcept {
    const int result = call<int(const char*, const char*)>("rename", from, to);
    if (result == 0) {
        record({Effect::Kind::rename, from, to});
    }
    return result;
}

int link(const char* from, const char* to) noexcept {
    const int result = call<int(const char*, const char*)>("link", from, to);
    if (result == 0) {
        record({Effect::Kind::link, from, to});
    }
    return result;
}

int unlink(const char* path) noexcept {
    const int result = call<int(const char*)>("unlink", path);
    if (result == 0) {
        record({Effect::Kind::unlink, path});
    }
    return result;
}

int mkdir(const char* path, mode_t mode) noexcept {
    const int result = call<int(const char*, mode_t)>("mkdir", path, mode);
    if (result == 0) {
        record({Effect::Kind::createFolder, path});
    }
    return result;
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
