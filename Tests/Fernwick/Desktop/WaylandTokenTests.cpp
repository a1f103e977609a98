#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <thread>

#include "Desktop/WaylandToken.hpp"
#include "Posix/LocalSocket.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/TemporaryFolder.hpp"

namespace {

using Bytes = std::string;

Bytes word(std::uint32_t number) {
    return Bytes(reinterpret_cast<const char*>(&number), sizeof number);
}

Bytes text(const Bytes& characters) {
    Bytes bytes = word(static_cast<std::uint32_t>(characters.size() + 1)) + characters + '\0';
    bytes.resize((bytes.size() + 3) / 4 * 4);
    return bytes;
}

Bytes event(std::uint32_t sender, std::uint32_t number, const Bytes& arguments) {
    const auto size = static_cast<std::uint32_t>(8 + arguments.size());
    return word(sender) + word(size << 16 | number) + arguments;
}

Bytes global(std::uint32_t name, const Bytes& interface) {
    return event(2, 0, word(name) + text(interface) + word(1));
}

/// What a compositor with two globals answers, recorded from Mutter; object 3 is the callback.
const Bytes globals = global(1, "wl_compositor") + global(27, "xdg_activation_v1");
const Bytes endOfGlobals = event(3, 0, word(5)) + event(1, 1, word(3));

const Bytes commit = event(5, 3, "");

/// Listens on the socket of a compositor. Sends fixed bytes to the first client, and others once it
/// has requested a token.
class Compositor {
public:
    explicit Compositor(Bytes answer, Bytes later = {})
        : answer_(std::move(answer)), later_(std::move(later)) {
        const Posix::LocalAddress address(
            QByteArray::fromStdString(folder_.path() / "wayland-test"));
        EXPECT_EQ(::bind(listener_.number(), address.get(), address.size()), 0);
        EXPECT_EQ(::listen(listener_.number(), 1), 0);
        server_ = std::thread([this] { serve(); });
    }
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;
    ~Compositor() {
        ::shutdown(listener_.number(), SHUT_RDWR);
        server_.join();
    }

    /// All that the client has sent; waits until it has closed the connection.
    Bytes requests() {
        server_.join();
        server_ = std::thread([] {});
        return requests_;
    }

private:
    void serve() {
        const Posix::FileDescriptor client(::accept(listener_.number(), nullptr, nullptr));
        ::send(client.number(), answer_.data(), answer_.size(), MSG_NOSIGNAL);
        std::array<char, 1024> buffer{};
        for (ssize_t count = 0;
             (count = ::recv(client.number(), buffer.data(), buffer.size(), 0)) > 0;) {
            requests_.append(buffer.data(), static_cast<std::size_t>(count));
            if (requests_.ends_with(commit)) {
                ::send(client.number(), later_.data(), later_.size(), MSG_NOSIGNAL);
            }
        }
    }

    const Bytes answer_;
    const Bytes later_;
    Bytes requests_;
    TemporaryFolder folder_;
    const EnvironmentVariable runtimeFolder_{"XDG_RUNTIME_DIR", folder_.path().c_str()};
    const EnvironmentVariable display_{"WAYLAND_DISPLAY", "wayland-test"};
    const Posix::FileDescriptor listener_ = Posix::localSocket(SOCK_STREAM);
    std::thread server_;
};

}  // namespace

TEST(WaylandToken, isThatOfTheCompositor) {
    Compositor compositor(globals + endOfGlobals, event(5, 0, text("token-1")));

    EXPECT_EQ(Desktop::requestWaylandToken(), "token-1");

    const Bytes activation = word(27) + text("xdg_activation_v1") + word(1) + word(4);
    EXPECT_EQ(compositor.requests(), event(1, 1, word(2)) + event(1, 0, word(3)) +
                                         event(2, 0, activation) + event(4, 1, word(5)) +
                                         event(5, 3, ""));
}

TEST(WaylandToken, isEmptyIfTheCompositorHasNone) {
    const Bytes unexpected = event(5, 0, text("token-1"));
    const Compositor compositor(global(1, "wl_compositor") + endOfGlobals + unexpected);

    EXPECT_EQ(Desktop::requestWaylandToken(), "");
}

TEST(WaylandToken, isEmptyWithoutACompositor) {
    const TemporaryFolder folder;
    const EnvironmentVariable runtimeFolder("XDG_RUNTIME_DIR", folder.path().c_str());

    EXPECT_EQ(Desktop::requestWaylandToken(), "");
}

TEST(WaylandToken, isEmptyIfTheCompositorDoesNotAnswer) {
    const Compositor compositor("");
    const auto began = std::chrono::steady_clock::now();

    EXPECT_EQ(Desktop::requestWaylandToken(), "");

    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(3));
}

TEST(WaylandToken, isEmptyIfTheCompositorReportsAnError) {
    const Compositor compositor(globals + event(1, 0, word(4) + word(0) + text("no")));

    EXPECT_EQ(Desktop::requestWaylandToken(), "");
}

TEST(WaylandToken, isEmptyIfTheAnswerIsMalformed) {
    const Bytes token = event(5, 0, text("token-1"));
    for (const Bytes& answer :
         {word(2) + word(0), word(2) + word(7 << 16), event(2, 0, ""), event(5, 0, ""),
          event(5, 0, word(1000)), token.substr(0, token.size() - 4)}) {
        const Compositor compositor(answer);

        EXPECT_EQ(Desktop::requestWaylandToken(), "");
    }
}
