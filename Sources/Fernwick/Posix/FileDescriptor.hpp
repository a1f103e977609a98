#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace Posix {

/// Owns an open file descriptor and closes it on destruction.
class FileDescriptor {
public:
    /// Takes ownership of what a call such as open() returned; negative means no descriptor.
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool valid() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

    /// Closes it now. False when close() reports that earlier writes were lost; see errno.
    bool close() {
        // Linux releases the descriptor even when close() fails with EINTR: never retry.
        return !valid() || ::close(std::exchange(number_, -1)) == 0 || errno == EINTR;
    }

private:
    int number_;
};

/// Whether retrying an open() that failed with `error` is pointless: permission denied, a symbolic
/// link loop, or a socket or device that cannot be opened.
[[nodiscard]] inline bool isPermanentOpenError(int error) {
    return error == EACCES || error == EPERM || error == ELOOP || error == ENXIO || error == ENODEV;
}

/// Repeats a system call while it fails with EINTR.
template <typename Call>
[[nodiscard]] auto retryOnInterrupt(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

}  // namespace Posix
