#include "Desktop/X11Compositor.hpp"

#include "Desktop/X11Connection.hpp"

namespace Desktop {

bool isComposited() {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr) {
        return true;
    }
    const X11Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, x11CompositorSelection(connection)),
        nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

}  // namespace Desktop
