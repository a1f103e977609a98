#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <array>
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

    /// Closes it now. Returns false if close() reports that earlier writes were lost; see errno.
    bool close() {
        // Linux releases the descriptor even when close() fails with EINTR: never retry.
        return !valid() || ::close(std::exchange(number_, -1)) == 0 || errno == EINTR;
    }

private:
    int number_;
};

/// A pipe whose ends do not block. Both are invalid when it could not be created.
struct Pipe {
    FileDescriptor reader;
    FileDescriptor writer;

    [[nodiscard]] static Pipe open() {
        std::array<int, 2> ends{-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            ends = {-1, -1};
        }
        return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    }
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

/// open(2) that repeats on EINTR and never blocks on a named pipe or a device in the file's place.
[[nodiscard]] inline FileDescriptor openFile(const char* path, int flags, mode_t mode = 0) {
    constexpr int always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    return FileDescriptor(retryOnInterrupt([&] { return ::open(path, flags | always, mode); }));
}

}  // namespace Posix
