#include "Desktop/X11FullScreen.hpp"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWindow>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace Desktop {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const ReplyPointer<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t rootOf(xcb_connection_t* connection, xcb_window_t window) {
    const ReplyPointer<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return reply ? reply->root : xcb_window_t{XCB_WINDOW_NONE};
}

}  // namespace

bool requestFullScreenOnX11(const QWindow& window, bool fullScreen) {
    // Qt's offscreen platform has this interface as well.
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
        return false;
    }
    xcb_connection_t* const connection =
        qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    // As in the Extended Window Manager Hints: 1 adds a state, 0 removes it; the last 1 says that
    // the request comes from an application.
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = atom(connection, "_NET_WM_STATE");
    message.data.data32[0] = fullScreen ? 1 : 0;
    message.data.data32[1] = atom(connection, "_NET_WM_STATE_FULLSCREEN");
    message.data.data32[3] = 1;
    xcb_send_event(connection, 0, rootOf(connection, message.window),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
    return true;
}

}  // namespace Desktop
