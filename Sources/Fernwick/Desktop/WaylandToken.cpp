#include "Desktop/WaylandToken.hpp"

#include <poll.h>
#include <wayland-client.h>
#include <xdg-activation-v1-client.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <memory>

namespace Desktop {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds timeout{1};

template <auto destroy>
struct Destroy {
    void operator()(auto* object) const { destroy(object); }
};

template <typename Object, auto destroy>
using Owned = std::unique_ptr<Object, Destroy<destroy>>;

constexpr wl_registry_listener findsActivation{
    [](void* activation, wl_registry* registry, std::uint32_t name, const char* interface,
       std::uint32_t) {
        if (std::strcmp(interface, xdg_activation_v1_interface.name) == 0) {
            *static_cast<void**>(activation) =
                wl_registry_bind(registry, name, &xdg_activation_v1_interface, 1);
        }
    },
    [](void*, wl_registry*, std::uint32_t) {}};

constexpr wl_callback_listener setsFlag{
    [](void* flag, wl_callback*, std::uint32_t) { *static_cast<bool*>(flag) = true; }};

constexpr xdg_activation_token_v1_listener keepsToken{
    [](void* kept, xdg_activation_token_v1*, const char* token) {
        *static_cast<QByteArray*>(kept) = token;
    }};

/// wl_display_dispatch() with a deadline. False if it has passed or the connection has failed.
bool dispatch(wl_display* display, Clock::time_point deadline) {
    while (wl_display_prepare_read(display) != 0) {
        if (wl_display_dispatch_pending(display) < 0) {
            return false;
        }
    }
    wl_display_flush(display);
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    pollfd socket{wl_display_get_fd(display), POLLIN, 0};
    if (left.count() <= 0 || ::poll(&socket, 1, static_cast<int>(left.count())) <= 0) {
        wl_display_cancel_read(display);
        return false;
    }
    return wl_display_read_events(display) == 0 && wl_display_dispatch_pending(display) >= 0;
}

}  // namespace

QByteArray requestWaylandToken() {
    const Clock::time_point deadline = Clock::now() + timeout;
    const Owned<wl_display, wl_display_disconnect> display(wl_display_connect(nullptr));
    if (display == nullptr) {
        return {};
    }
    xdg_activation_v1* found = nullptr;
    const Owned<wl_registry, wl_registry_destroy> registry(wl_display_get_registry(display.get()));
    wl_registry_add_listener(registry.get(), &findsActivation, &found);
    bool hasAllGlobals = false;
    const Owned<wl_callback, wl_callback_destroy> synced(wl_display_sync(display.get()));
    wl_callback_add_listener(synced.get(), &setsFlag, &hasAllGlobals);
    while (!hasAllGlobals && dispatch(display.get(), deadline)) {
    }
    const Owned<xdg_activation_v1, xdg_activation_v1_destroy> activation(found);
    if (!hasAllGlobals || activation == nullptr) {
        return {};
    }
    QByteArray token;
    const Owned<xdg_activation_token_v1, xdg_activation_token_v1_destroy> request(
        xdg_activation_v1_get_activation_token(activation.get()));
    xdg_activation_token_v1_add_listener(request.get(), &keepsToken, &token);
    xdg_activation_token_v1_commit(request.get());
    while (token.isEmpty() && dispatch(display.get(), deadline)) {
    }
    return token;
}

}  // namespace Desktop
