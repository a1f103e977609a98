#include "Desktop/X11StartupNotification.hpp"

#include <algorithm>

#include "Desktop/X11Connection.hpp"

namespace Desktop {

namespace {

/// In the syntax of the startup notification protocol, including the null terminator.
QByteArray removal(const QByteArray& id) {
    QByteArray message = "remove: ID=\"";
    for (const char character : id) {
        if (character == '"' || character == '\\') {
            message += '\\';
        }
        message += character;
    }
    message += '"';
    message += '\0';
    return message;
}

}  // namespace

void endX11StartupNotification(const QByteArray& id) {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr || id.isEmpty()) {
        return;
    }
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    // The parts of a message are those from the same window, which is never shown.
    xcb_client_message_event_t part{};
    part.response_type = XCB_CLIENT_MESSAGE;
    part.format = 8;
    part.window = xcb_generate_id(connection);
    part.type = x11Atom(connection, "_NET_STARTUP_INFO_BEGIN");
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, part.window, screen.root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    const QByteArray message = removal(id);
    constexpr qsizetype partSize = sizeof part.data.data8;
    for (qsizetype sent = 0; sent < message.size(); sent += partSize) {
        const qsizetype count = std::min(partSize, message.size() - sent);
        std::fill_n(part.data.data8, partSize, std::uint8_t{0});
        std::copy_n(message.constData() + sent, count, part.data.data8);
        xcb_send_event(connection, 0, screen.root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&part));
        part.type = x11Atom(connection, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(connection, part.window);
    xcb_flush(connection);
}

}  // namespace Desktop
