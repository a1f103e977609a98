#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "Posix/FileDescriptor.hpp"

/// Keeps other processes out for as long as it lives, by a lock on a file made for nothing else.
/// The system lets go of it when its process ends, however it ends, so a crash leaves nothing
/// that blocks the next start. The empty file itself stays: removing it would race.
class FileLock {
public:
    /// Nothing when another holds the lock for all of `patience` or when `path` cannot be opened
    /// this time. What stands at `path` and can never be opened keeps nobody out, nor us.
    [[nodiscard]] static std::optional<FileLock> acquire(const std::filesystem::path& path,
                                                         std::chrono::milliseconds patience);

    /// False where there is nothing to hold: on a file system that knows no locks, or where what
    /// stands in the lock's place cannot be opened.
    [[nodiscard]] bool excludesOthers() const { return excludesOthers_; }

private:
    FileLock(FileDescriptor file, bool excludesOthers);

    FileDescriptor file_;
    bool excludesOthers_;
};
