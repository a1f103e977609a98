#pragma once

#include <xcb/xcb.h>

#include <QByteArray>
#include <cstdlib>
#include <memory>

namespace Desktop {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply of the X server.
template <typename Reply>
using X11Reply = std::unique_ptr<Reply, FreeReply>;

/// Qt's connection to the X server; null on other platforms than X11.
[[nodiscard]] xcb_connection_t* x11Connection();

/// The number that the X server uses for `name`.
[[nodiscard]] xcb_atom_t x11Atom(xcb_connection_t* connection, const QByteArray& name);

/// The selection that the compositor of the display's screen owns.
[[nodiscard]] xcb_atom_t x11CompositorSelection(xcb_connection_t* connection);

/// The root window of the screen that `window` is on.
[[nodiscard]] xcb_window_t x11RootOf(xcb_connection_t* connection, xcb_window_t window);

}  // namespace Desktop
