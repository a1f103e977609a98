#include "Desktop/X11Frame.hpp"

#include <xcb/shape.h>

#include <QCoreApplication>
#include <QRegion>
#include <QWindow>
#include <algorithm>
#include <cstring>
#include <vector>

#include "Desktop/X11Connection.hpp"

namespace Desktop {

namespace {

/// More than a window manager supports, and than a window has states.
constexpr std::uint32_t mostAtoms = 1024;

/// As in xfixes.h, which would be the only use of that library.
struct SelectionEvent {
    std::uint8_t type;
    std::uint8_t subtype;
    std::uint16_t sequence;
    xcb_window_t window;
    xcb_window_t owner;
    xcb_atom_t selection;
};

template <typename Event>
Event eventAt(const void* message) {
    Event event{};
    std::memcpy(&event, message, sizeof event);
    return event;
}

int firstEventOf(xcb_connection_t* connection, const char* extension) {
    const X11Reply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(
        connection,
        xcb_query_extension(connection, static_cast<std::uint16_t>(std::strlen(extension)),
                            extension),
        nullptr));
    return reply && reply->present != 0 ? reply->first_event : -1;
}

xcb_window_t numberOf(const QWindow& window) {
    return static_cast<xcb_window_t>(window.winId());
}

std::vector<xcb_atom_t> atomsOf(xcb_connection_t* connection, xcb_window_t window,
                                const char* property) {
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, window, x11Atom(connection, property), XCB_ATOM_ATOM, 0,
                         mostAtoms),
        nullptr));
    if (!reply) {
        return {};
    }
    const auto* atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
    return {atoms, atoms + reply->value_len};
}

void setNumbers(const QWindow& window, const char* property,
                const std::vector<std::uint32_t>& numbers) {
    if (xcb_connection_t* const connection = x11Connection()) {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, numberOf(window),
                            x11Atom(connection, property), XCB_ATOM_CARDINAL, 32,
                            static_cast<std::uint32_t>(numbers.size()), numbers.data());
        xcb_flush(connection);
    }
}

}  // namespace

bool supportsFrameMargins() {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr) {
        return false;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    return std::ranges::count(atomsOf(connection, root, "_NET_SUPPORTED"),
                              x11Atom(connection, "_GTK_FRAME_EXTENTS")) > 0;
}

void setFrameMargins(const QWindow& window, const QMargins& margins) {
    std::vector<std::uint32_t> numbers;
    for (const int margin : {margins.left(), margins.right(), margins.top(), margins.bottom()}) {
        numbers.push_back(static_cast<std::uint32_t>(margin));
    }
    setNumbers(window, "_GTK_FRAME_EXTENTS", numbers);
}

void setOpaqueRegion(const QWindow& window, const QRegion& region) {
    std::vector<std::uint32_t> numbers;
    for (const QRect& part : region) {
        for (const int number : {part.x(), part.y(), part.width(), part.height()}) {
            numbers.push_back(static_cast<std::uint32_t>(number));
        }
    }
    setNumbers(window, "_NET_WM_OPAQUE_REGION", numbers);
}

void setInputArea(const QWindow& window, const QRect& area) {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr) {
        return;
    }
    if (area.isEmpty()) {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, numberOf(window), 0, 0,
                       XCB_PIXMAP_NONE);
    } else {
        const xcb_rectangle_t rectangle{
            static_cast<std::int16_t>(area.x()), static_cast<std::int16_t>(area.y()),
            static_cast<std::uint16_t>(area.width()), static_cast<std::uint16_t>(area.height())};
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                             XCB_CLIP_ORDERING_UNSORTED, numberOf(window), 0, 0, 1, &rectangle);
    }
    xcb_flush(connection);
}

bool isHalfMaximized(const QWindow& window) {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr) {
        return false;
    }
    const std::vector<xcb_atom_t> states = atomsOf(connection, numberOf(window), "_NET_WM_STATE");
    const auto has = [&](const char* state) {
        return std::ranges::count(states, x11Atom(connection, state)) > 0;
    };
    return has("_NET_WM_STATE_MAXIMIZED_VERT") != has("_NET_WM_STATE_MAXIMIZED_HORZ");
}

FrameWatch::FrameWatch(const QWindow& window, QObject* parent) : QObject(parent) {
    if (xcb_connection_t* const connection = x11Connection()) {
        window_ = numberOf(window);
        stateProperty_ = x11Atom(connection, "_NET_WM_STATE");
        compositor_ = x11CompositorSelection(connection);
        // Qt asks the X server for these events, but does not pass them on.
        selectionEvent_ = firstEventOf(connection, "XFIXES");
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
}

bool FrameWatch::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    constexpr int typeMask = 0x7f;
    if (eventType != "xcb_generic_event_t") {
        return false;
    }
    const int type = eventAt<xcb_generic_event_t>(message).response_type & typeMask;
    bool concerns = false;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto property = eventAt<xcb_property_notify_event_t>(message);
        concerns = property.window == window_ && property.atom == stateProperty_;
    } else if (type == selectionEvent_) {
        concerns = eventAt<SelectionEvent>(message).selection == compositor_;
    }
    if (concerns) {
        // Queued, so that Qt has handled the event.
        QMetaObject::invokeMethod(this, &FrameWatch::changed, Qt::QueuedConnection);
    }
    return false;
}

}  // namespace Desktop
