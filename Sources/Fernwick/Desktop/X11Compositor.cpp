#include "Desktop/X11Compositor.hpp"

#include <xcb/xcb.h>

#include <QByteArray>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>

namespace Desktop {

namespace {

// A compositing manager owns the selection of this name and the number of its screen.
QByteArray selectionName() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return "_NET_WM_CM_S" + QByteArray::number(screen);
}

xcb_atom_t selectionAtom(xcb_connection_t* connection) {
    const QByteArray name = selectionName();
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(
            connection,
            xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()),
                            name.constData()),
            nullptr),
        &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace

bool isComposited() {
    // Qt's offscreen platform has the X11 interface as well.
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
        return true;
    }
    xcb_connection_t* const connection =
        qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    static const xcb_atom_t selection = selectionAtom(connection);
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection),
                                      nullptr),
        &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

}  // namespace Desktop
