#pragma once

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>

#include <QByteArray>
#include <algorithm>
#include <cstddef>

#include "Posix/FileDescriptor.hpp"

namespace Posix {

/// The address of an AF_UNIX socket: a path or, after a leading null byte, an abstract name.
class LocalAddress {
public:
    static constexpr qsizetype maximumSize = sizeof(sockaddr_un::sun_path) - 1;

    /// Names longer than `maximumSize` bytes are truncated.
    explicit LocalAddress(const QByteArray& name) {
        const qsizetype count = std::min(name.size(), maximumSize);
        value_.sun_family = AF_UNIX;
        std::copy_n(name.constData(), count, value_.sun_path);
        size_ = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) +
                                       static_cast<std::size_t>(count));
    }

    [[nodiscard]] const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&value_); }
    [[nodiscard]] socklen_t size() const { return size_; }

private:
    sockaddr_un value_{};
    socklen_t size_ = 0;
};

/// Opens an AF_UNIX socket. `type` is passed to socket(2) and may include SOCK_NONBLOCK.
[[nodiscard]] inline FileDescriptor localSocket(int type) {
    return FileDescriptor(::socket(AF_UNIX, type | SOCK_CLOEXEC, 0));
}

/// Makes blocking calls fail with EAGAIN after `timeout`. `option` is SO_RCVTIMEO or SO_SNDTIMEO;
/// the latter also applies to connect().
inline void setTimeout(const FileDescriptor& socket, int option, timeval timeout) {
    ::setsockopt(socket.number(), SOL_SOCKET, option, &timeout, sizeof timeout);
}

}  // namespace Posix
