#include "Storage/FileLock.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <thread>

#include "Storage/Log.hpp"

namespace Storage {

std::optional<FileLock> FileLock::acquire(const std::filesystem::path& path,
                                          std::chrono::milliseconds timeout) {
    // O_NONBLOCK: opening a named pipe in the file's place must not block.
    constexpr int flags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const auto open = [&](int mode) {
        return Posix::FileDescriptor(
            Posix::retryOnInterrupt([&] { return ::open(path.c_str(), mode | flags, 0600); }));
    };
    Posix::FileDescriptor file = open(O_RDWR | O_CREAT);
    if (!file.valid()) {
        // flock() works on another user's file or on a folder, too, if it can be read.
        file = open(O_RDONLY);
    }
    if (!logFailure(file.valid(), "opening the lock file")) {
        return Posix::isPermanentOpenError(errno) ? std::optional(FileLock(std::move(file), false))
                                                  : std::nullopt;
    }
    // A blocking flock() has no timeout, so poll.
    constexpr std::chrono::milliseconds pause{5};
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    const auto lock = [&] { return ::flock(file.number(), LOCK_EX | LOCK_NB); };
    while (Posix::retryOnInterrupt(lock) != 0) {
        if (errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP || errno == EBADF) {
            logFailure(false, "locking");
            return FileLock(std::move(file), false);
        }
        if (errno != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline) {
            logFailure(false, "locking");
            return std::nullopt;
        }
        std::this_thread::sleep_for(pause);
    }
    return FileLock(std::move(file), true);
}

}  // namespace Storage
