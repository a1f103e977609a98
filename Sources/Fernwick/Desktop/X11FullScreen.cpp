#include "Desktop/X11FullScreen.hpp"

#include <QWindow>

#include "Desktop/X11Connection.hpp"

namespace Desktop {

bool requestFullScreenOnX11(const QWindow& window, bool fullScreen) {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr) {
        return false;
    }
    // As in the Extended Window Manager Hints: 1 adds a state, 0 removes it; the last 1 says that
    // the request comes from an application.
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = x11Atom(connection, "_NET_WM_STATE");
    message.data.data32[0] = fullScreen ? 1 : 0;
    message.data.data32[1] = x11Atom(connection, "_NET_WM_STATE_FULLSCREEN");
    message.data.data32[3] = 1;
    xcb_send_event(connection, 0, x11RootOf(connection, message.window),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
    return true;
}

}  // namespace Desktop
