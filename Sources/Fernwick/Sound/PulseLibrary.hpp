#pragma once

#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/proplist.h>
#include <pulse/scache.h>
#include <pulse/stream.h>
#include <pulse/thread-mainloop.h>

/// The functions of libpulse that are used, without their prefix.
#define FERNWICK_PULSE_FUNCTIONS(FUNCTION) \
    FUNCTION(context_connect)              \
    FUNCTION(context_disconnect)           \
    FUNCTION(context_errno)                \
    FUNCTION(context_get_state)            \
    FUNCTION(context_new_with_proplist)    \
    FUNCTION(context_play_sample)          \
    FUNCTION(context_set_state_callback)   \
    FUNCTION(context_unref)                \
    FUNCTION(operation_unref)              \
    FUNCTION(proplist_free)                \
    FUNCTION(proplist_new)                 \
    FUNCTION(proplist_sets)                \
    FUNCTION(stream_connect_upload)        \
    FUNCTION(stream_finish_upload)         \
    FUNCTION(stream_get_state)             \
    FUNCTION(stream_new_with_proplist)     \
    FUNCTION(stream_set_state_callback)    \
    FUNCTION(stream_unref)                 \
    FUNCTION(stream_write)                 \
    FUNCTION(strerror)                     \
    FUNCTION(threaded_mainloop_free)       \
    FUNCTION(threaded_mainloop_get_api)    \
    FUNCTION(threaded_mainloop_new)        \
    FUNCTION(threaded_mainloop_set_name)   \
    FUNCTION(threaded_mainloop_start)      \
    FUNCTION(threaded_mainloop_stop)

namespace Sound {

/// libpulse, loaded with dlopen() at the first use: linking to it would load a dozen other
/// libraries before the first frame.
struct PulseLibrary {
#define FERNWICK_PULSE_MEMBER(name) decltype(&pa_##name) name;
    FERNWICK_PULSE_FUNCTIONS(FERNWICK_PULSE_MEMBER)
#undef FERNWICK_PULSE_MEMBER

    /// Null when the library, or one of the functions, is missing.
    [[nodiscard]] static const PulseLibrary* load();
};

/// The loaded library. Call it only after `PulseLibrary::load` has succeeded.
[[nodiscard]] const PulseLibrary& pulse();

}  // namespace Sound
