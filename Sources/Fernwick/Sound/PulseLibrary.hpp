#pragma once

#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/proplist.h>
#include <pulse/scache.h>
#include <pulse/stream.h>
#include <pulse/thread-mainloop.h>

#include <QLibrary>

namespace Sound {

/// libpulse, loaded with dlopen() at the first use: linking to it would load a dozen other
/// libraries before the first frame.
class PulseLibrary {
    /// Converts to a pointer to a function of any type.
    struct Symbol {
        QFunctionPointer address;

        template <typename Function>
        operator Function*() const {
            return reinterpret_cast<Function*>(address);
        }
    };

    Symbol find(const char* name) {
        const Symbol symbol{file_.resolve(name)};
        complete_ = complete_ && symbol.address != nullptr;
        return symbol;
    }

    // Declared first, because initializing the functions below takes both.
    QLibrary file_{QStringLiteral("pulse"), 0};
    bool complete_ = true;

public:
    /// Null when the library, or one of the functions, is missing.
    [[nodiscard]] static const PulseLibrary* load();

    // The functions in use, without their prefix.
    decltype(&pa_context_connect) context_connect = find("pa_context_connect");
    decltype(&pa_context_disconnect) context_disconnect = find("pa_context_disconnect");
    decltype(&pa_context_errno) context_errno = find("pa_context_errno");
    decltype(&pa_context_get_state) context_get_state = find("pa_context_get_state");
    decltype(&pa_context_new_with_proplist) context_new_with_proplist =
        find("pa_context_new_with_proplist");
    decltype(&pa_context_play_sample) context_play_sample = find("pa_context_play_sample");
    decltype(&pa_context_set_state_callback) context_set_state_callback =
        find("pa_context_set_state_callback");
    decltype(&pa_context_unref) context_unref = find("pa_context_unref");
    decltype(&pa_operation_unref) operation_unref = find("pa_operation_unref");
    decltype(&pa_proplist_free) proplist_free = find("pa_proplist_free");
    decltype(&pa_proplist_new) proplist_new = find("pa_proplist_new");
    decltype(&pa_proplist_sets) proplist_sets = find("pa_proplist_sets");
    decltype(&pa_stream_connect_upload) stream_connect_upload = find("pa_stream_connect_upload");
    decltype(&pa_stream_finish_upload) stream_finish_upload = find("pa_stream_finish_upload");
    decltype(&pa_stream_get_state) stream_get_state = find("pa_stream_get_state");
    decltype(&pa_stream_new_with_proplist) stream_new_with_proplist =
        find("pa_stream_new_with_proplist");
    decltype(&pa_stream_set_state_callback) stream_set_state_callback =
        find("pa_stream_set_state_callback");
    decltype(&pa_stream_unref) stream_unref = find("pa_stream_unref");
    decltype(&pa_stream_write) stream_write = find("pa_stream_write");
    decltype(&pa_strerror) strerror = find("pa_strerror");
    decltype(&pa_threaded_mainloop_free) threaded_mainloop_free = find("pa_threaded_mainloop_free");
    decltype(&pa_threaded_mainloop_get_api) threaded_mainloop_get_api =
        find("pa_threaded_mainloop_get_api");
    decltype(&pa_threaded_mainloop_new) threaded_mainloop_new = find("pa_threaded_mainloop_new");
    decltype(&pa_threaded_mainloop_set_name) threaded_mainloop_set_name =
        find("pa_threaded_mainloop_set_name");
    decltype(&pa_threaded_mainloop_start) threaded_mainloop_start =
        find("pa_threaded_mainloop_start");
    decltype(&pa_threaded_mainloop_stop) threaded_mainloop_stop = find("pa_threaded_mainloop_stop");
};

/// The loaded library. Call it only after `PulseLibrary::load` has succeeded.
[[nodiscard]] const PulseLibrary& pulse();

}  // namespace Sound
