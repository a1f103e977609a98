#include "Storage/FileLock.hpp"

#include <sys/file.h>

#include <thread>

#include "Storage/Log.hpp"

namespace Storage {

std::optional<FileLock> FileLock::acquire(const std::filesystem::path& path,
                                          std::chrono::milliseconds timeout) {
    Posix::FileDescriptor file = Posix::openFile(path.c_str(), O_RDWR | O_CREAT, 0600);
    if (!file.valid()) {
        // flock() works on another user's file or on a folder, too, if it can be read.
        file = Posix::openFile(path.c_str(), O_RDONLY);
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
        if (errno != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline) {
            logFailure(false, "locking");
            const bool unsupported =
                errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP || errno == EBADF;
            return unsupported ? std::optional(FileLock(std::move(file), false)) : std::nullopt;
        }
        std::this_thread::sleep_for(pause);
    }
    return FileLock(std::move(file), true);
}

}  // namespace Storage
