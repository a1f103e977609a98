#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

/// Owns an open file descriptor and closes it at the latest when it goes.
class FileDescriptor {
public:
    /// Takes over what a call such as `open` returned; a negative number is no descriptor.
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool valid() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

    /// Closes now. False when the system reports that something written before was lost.
    bool close() {
        // Linux has let go of the descriptor even when close() was interrupted: never call it
        // twice.
        return !valid() || ::close(std::exchange(number_, -1)) == 0 || errno == EINTR;
    }

private:
    int number_;
};

/// Whether the error of a call that did not open a file is one that no later try will be spared: it
/// is not allowed, or what stands there is a link to itself, a socket or a device without a driver.
[[nodiscard]] inline bool isLastingRefusal(int error) {
    return error == EACCES || error == EPERM || error == ELOOP || error == ENXIO || error == ENODEV;
}

/// Makes a system call again for as long as a signal interrupts it.
template <typename Call>
[[nodiscard]] auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}
