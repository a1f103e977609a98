#pragma once

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>

#include <QByteArray>
#include <algorithm>
#include <cstddef>

#include "Posix/FileDescriptor.hpp"

/// Where programs of one machine reach each other: a path, or, behind a NUL, a name that lies in
/// no folder.
class LocalAddress {
public:
    /// Of a name longer than `longest` bytes, the rest is dropped.
    explicit LocalAddress(const QByteArray& name) {
        const qsizetype count = std::min(name.size(), longest);
        value_.sun_family = AF_UNIX;
        std::copy_n(name.constData(), count, value_.sun_path);
        size_ =
            static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) + static_cast<socklen_t>(count);
    }

    [[nodiscard]] const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&value_); }
    [[nodiscard]] socklen_t size() const { return size_; }

    static constexpr qsizetype longest = sizeof(sockaddr_un::sun_path) - 1;

private:
    sockaddr_un value_{};
    socklen_t size_ = 0;
};

/// `type` is one of socket(2), with its flags.
[[nodiscard]] inline FileDescriptor localSocket(int type) {
    return FileDescriptor(::socket(AF_UNIX, type | SOCK_CLOEXEC, 0));
}

/// A call on `socket` in this direction, SO_SNDTIMEO or SO_RCVTIMEO, then fails with EAGAIN instead
/// of waiting any longer. Reaching an address counts as sending.
inline void waitAtMost(const FileDescriptor& socket, int direction, timeval patience) {
    ::setsockopt(socket.number(), SOL_SOCKET, direction, &patience, sizeof patience);
}
