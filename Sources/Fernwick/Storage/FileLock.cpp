#include "Storage/FileLock.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <thread>

std::optional<FileLock> FileLock::acquire(const std::filesystem::path& path,
                                          std::chrono::milliseconds patience) {
    // O_NONBLOCK: a pipe that stands in the file's place must not hold us up.
    constexpr int flags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    FileDescriptor file(
        uninterrupted([&] { return ::open(path.c_str(), O_RDWR | O_CREAT | flags, 0600); }));
    if (!file.valid()) {
        // A lock made by another user, or a folder in its place, can still be locked.
        file =
            FileDescriptor(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | flags); }));
    }
    if (!file.valid()) {
        return isLastingRefusal(errno) ? std::optional(FileLock(std::move(file), false))
                                       : std::nullopt;
    }
    // A blocking flock() knows no time limit, so ask, sleep and ask again.
    constexpr std::chrono::milliseconds pause{5};
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (uninterrupted([&] { return ::flock(file.number(), LOCK_EX | LOCK_NB); }) != 0) {
        if (errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP || errno == EBADF) {
            return FileLock(std::move(file), false);
        }
        if (errno != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(pause);
    }
    return FileLock(std::move(file), true);
}

FileLock::FileLock(FileDescriptor file, bool excludesOthers)
    : file_(std::move(file)), excludesOthers_(excludesOthers) {}
