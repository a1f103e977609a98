#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "Posix/FileDescriptor.hpp"

namespace Storage {

/// An exclusive advisory lock (flock) on a file that exists only for locking. The kernel releases
/// it when the process ends, even by SIGKILL. The empty file stays: removing it would be a race.
class FileLock {
public:
    /// Returns std::nullopt if another process holds the lock for all of `timeout`, or if `path`
    /// cannot be opened this time. If locking can never work there, returns a lock that excludes
    /// nobody.
    [[nodiscard]] static std::optional<FileLock> acquire(const std::filesystem::path& path,
                                                         std::chrono::milliseconds timeout);

    /// False if the file system does not support locks, or `path` can never be opened.
    [[nodiscard]] bool excludesOthers() const { return excludesOthers_; }

private:
    FileLock(Posix::FileDescriptor file, bool excludesOthers)
        : file_(std::move(file)), excludesOthers_(excludesOthers) {}

    Posix::FileDescriptor file_;
    bool excludesOthers_;
};

}  // namespace Storage
