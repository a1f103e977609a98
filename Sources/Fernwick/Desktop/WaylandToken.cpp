#include "Desktop/WaylandToken.hpp"

#include <QtGlobal>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

#include "Posix/LocalSocket.hpp"

namespace Desktop {

namespace {

using Word = std::uint32_t;

constexpr timeval timeout{1, 0};

// IDs of Wayland objects. Those of a client are numbered in the order of their creation.
constexpr Word display = 1;
constexpr Word registry = 2;
constexpr Word callback = 3;
constexpr Word activation = 4;
constexpr Word token = 5;

// Numbers of requests and events, by interface.
namespace WlDisplay {
constexpr Word sync = 0;
constexpr Word getRegistry = 1;
constexpr Word error = 0;
}  // namespace WlDisplay
namespace WlRegistry {
constexpr Word bind = 0;
constexpr Word global = 0;
}  // namespace WlRegistry
namespace XdgActivation {
constexpr const char* name = "xdg_activation_v1";
constexpr Word version = 1;
constexpr Word getToken = 1;
}  // namespace XdgActivation
namespace XdgActivationToken {
constexpr Word commit = 3;
constexpr Word done = 0;
}  // namespace XdgActivationToken

QByteArray encoded(Word number) {
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

/// The length with the null terminator, the characters, and padding to whole words.
QByteArray encoded(const QByteArray& text) {
    constexpr qsizetype word = sizeof(Word);
    const QByteArray terminator(word - text.size() % word, '\0');
    return encoded(static_cast<Word>(text.size() + 1)) + text + terminator;
}

/// The word at `offset`; 0 beyond the end.
Word wordAt(const QByteArray& bytes, qsizetype offset) {
    Word word = 0;
    if (offset + qsizetype{sizeof word} <= bytes.size()) {
        std::memcpy(&word, bytes.constData() + offset, sizeof word);
    }
    return word;
}

QByteArray textAt(const QByteArray& bytes, qsizetype offset) {
    // mid() cuts a length that is beyond the end.
    const QByteArray text = bytes.mid(offset + qsizetype{sizeof(Word)}, wordAt(bytes, offset));
    return text.left(text.indexOf('\0'));
}

struct Event {
    Word sender;
    Word number;
    QByteArray arguments;
};

/// libwayland would do this, but every start of the game would have to load it, and it waits for
/// the compositor without a limit.
class Connection {
public:
    Connection() {
        QByteArray path = qgetenv("WAYLAND_DISPLAY");
        if (path.isEmpty()) {
            path = "wayland-0";
        }
        if (!path.startsWith('/')) {
            path.prepend(qgetenv("XDG_RUNTIME_DIR") + '/');
        }
        const Posix::LocalAddress address(path);
        Posix::setTimeout(socket_, SO_SNDTIMEO, timeout);
        Posix::setTimeout(socket_, SO_RCVTIMEO, timeout);
        // If it fails, so do the calls below.
        static_cast<void>(::connect(socket_.number(), address.get(), address.size()));
    }

    void send(Word receiver, Word request, const QByteArray& arguments) {
        const auto size = static_cast<Word>(headerSize + arguments.size());
        const QByteArray bytes = encoded(receiver) + encoded(size << 16 | request) + arguments;
        ::send(socket_.number(), bytes.constData(), static_cast<std::size_t>(bytes.size()),
               MSG_NOSIGNAL);
    }

    /// Nothing if the connection fails or the timeout has elapsed.
    [[nodiscard]] std::optional<Event> receive() {
        if (!receiveAtLeast(headerSize)) {
            return std::nullopt;
        }
        const Word second = wordAt(received_, sizeof(Word));
        const qsizetype size = second >> 16;
        if (size < headerSize || !receiveAtLeast(size)) {
            return std::nullopt;
        }
        Event event{wordAt(received_, 0), second & 0xffff,
                    received_.mid(headerSize, size - headerSize)};
        received_.remove(0, size);
        return event;
    }

private:
    static constexpr qsizetype headerSize = 2 * sizeof(Word);

    [[nodiscard]] bool receiveAtLeast(qsizetype size) {
        while (received_.size() < size) {
            std::array<char, 4096> buffer{};
            const ssize_t count = ::recv(socket_.number(), buffer.data(), buffer.size(), 0);
            if (count <= 0) {
                return false;
            }
            received_.append(buffer.data(), count);
        }
        return true;
    }

    Posix::FileDescriptor socket_ = Posix::localSocket(SOCK_STREAM);
    QByteArray received_;
};

}  // namespace

bool usesWayland() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return platform.isEmpty() ? qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                                    qgetenv("XDG_SESSION_TYPE") == "wayland"
                              : platform.startsWith("wayland");
}

QByteArray requestWaylandToken() {
    Connection compositor;
    compositor.send(display, WlDisplay::getRegistry, encoded(registry));
    compositor.send(display, WlDisplay::sync, encoded(callback));
    bool isRequested = false;
    while (const std::optional<Event> event = compositor.receive()) {
        if (event->sender == registry && event->number == WlRegistry::global &&
            textAt(event->arguments, sizeof(Word)) == XdgActivation::name) {
            compositor.send(registry, WlRegistry::bind,
                            encoded(wordAt(event->arguments, 0)) + encoded(XdgActivation::name) +
                                encoded(XdgActivation::version) + encoded(activation));
            compositor.send(activation, XdgActivation::getToken, encoded(token));
            compositor.send(token, XdgActivationToken::commit, {});
            isRequested = true;
        } else if (event->sender == token && event->number == XdgActivationToken::done) {
            return textAt(event->arguments, 0);
        } else if ((event->sender == callback && !isRequested) ||
                   (event->sender == display && event->number == WlDisplay::error)) {
            break;
        }
    }
    return {};
}

}  // namespace Desktop
