#include "Desktop/X11Connection.hpp"

#include <QGuiApplication>
#include <QHash>

namespace Desktop {

xcb_connection_t* x11Connection() {
    // Qt's offscreen platform has this interface as well.
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
        return nullptr;
    }
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

xcb_atom_t x11Atom(xcb_connection_t* connection, const QByteArray& name) {
    // Each question takes as long as the network to the X server.
    static QHash<QByteArray, xcb_atom_t> known;
    xcb_atom_t& atom = known[name];
    if (atom == XCB_ATOM_NONE) {
        const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()),
                                            name.constData());
        const X11Reply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookie, nullptr));
        atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    return atom;
}

xcb_atom_t x11CompositorSelection(xcb_connection_t* connection) {
    // The screen is the 1 of a display such as ":0.1".
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return x11Atom(connection, "_NET_WM_CM_S" + QByteArray::number(screen));
}

xcb_window_t x11RootOf(xcb_connection_t* connection, xcb_window_t window) {
    const X11Reply<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    return reply ? reply->root : xcb_window_t{XCB_WINDOW_NONE};
}

}  // namespace Desktop
