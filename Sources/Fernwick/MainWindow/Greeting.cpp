#include "MainWindow/Greeting.hpp"

#include "Session/LocalSocket.hpp"

Answer greet(const QByteArray& name, std::string_view words, std::chrono::milliseconds patience) {
    const timeval atMost{patience.count() / 1000, patience.count() % 1000 * 1000};
    const LocalAddress address(name);
    const FileDescriptor socket = localSocket(SOCK_STREAM);
    waitAtMost(socket, SO_SNDTIMEO, atMost);
    waitAtMost(socket, SO_RCVTIMEO, atMost);
    if (::connect(socket.number(), address.get(), address.size()) != 0) {
        return errno == EAGAIN ? Answer::none : Answer::nobody;
    }
    ::send(socket.number(), words.data(), words.size(), MSG_NOSIGNAL);
    char answer = 0;
    const ssize_t count = ::recv(socket.number(), &answer, sizeof answer, 0);
    if (count > 0) {
        return Answer::some;
    }
    return count < 0 && errno == EAGAIN ? Answer::none : Answer::nobody;
}
