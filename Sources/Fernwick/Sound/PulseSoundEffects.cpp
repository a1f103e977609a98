#include "Sound/PulseSoundEffects.hpp"

#include <unistd.h>

#include <QByteArray>
#include <type_traits>

#include "Posix/FileDescriptor.hpp"
#include "Sound/PulseLibrary.hpp"
#include "Sound/PulsePlayer.hpp"

namespace Sound {

namespace {

/// Sent through the pipe. Without an effect: connect only.
struct Request {
    std::optional<SoundEffect> effect;
    PulsePlayer::Clock::time_point requested;
};
static_assert(std::is_trivially_copyable_v<Request>);

}  // namespace

/// libpulse's main loop thread, and a pipe to send it requests. Taking libpulse's main loop lock
/// instead would block the caller while the thread is busy.
class PulseSoundEffects::Thread {
public:
    [[nodiscard]] static std::unique_ptr<Thread> start(const QByteArray& applicationID);

    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;
    ~Thread();

    /// Drops the request when the pipe is full: it would be late anyway.
    void send(std::optional<SoundEffect> effect) {
        const Request request{effect, PulsePlayer::Clock::now()};
        static_cast<void>(!::write(pipe_.writer.number(), &request, sizeof request));
    }

private:
    Thread(pa_threaded_mainloop* loop, Posix::Pipe pipe, const QByteArray& applicationID);

    void receive();

    pa_threaded_mainloop* loop_;
    Posix::Pipe pipe_;
    PulsePlayer player_;
    pa_io_event* event_;
};

std::unique_ptr<PulseSoundEffects::Thread> PulseSoundEffects::Thread::start(
    const QByteArray& applicationID) {
    Posix::Pipe pipe = Posix::Pipe::open();
    if (!pipe.reader.valid() || PulseLibrary::load() == nullptr) {
        return nullptr;
    }
    pa_threaded_mainloop* loop = pulse().threaded_mainloop_new();
    if (loop == nullptr) {
        return nullptr;
    }
    // Owns the loop from here on, and frees it if its thread does not start.
    std::unique_ptr<Thread> thread(new Thread(loop, std::move(pipe), applicationID));
    pulse().threaded_mainloop_set_name(loop, "sounds");
    return pulse().threaded_mainloop_start(loop) == 0 ? std::move(thread) : nullptr;
}

PulseSoundEffects::Thread::Thread(pa_threaded_mainloop* loop, Posix::Pipe pipe,
                                  const QByteArray& applicationID)
    : loop_(loop),
      pipe_(std::move(pipe)),
      player_(*pulse().threaded_mainloop_get_api(loop), applicationID) {
    pa_mainloop_api& api = *pulse().threaded_mainloop_get_api(loop);
    event_ = api.io_new(
        &api, pipe_.reader.number(), PA_IO_EVENT_INPUT,
        [](pa_mainloop_api*, pa_io_event*, int, pa_io_event_flags_t, void* self) {
            static_cast<Thread*>(self)->receive();
        },
        this);
}

PulseSoundEffects::Thread::~Thread() {
    pulse().threaded_mainloop_stop(loop_);
    pulse().threaded_mainloop_get_api(loop_)->io_free(event_);
    player_.disconnect();
    pulse().threaded_mainloop_free(loop_);
}

void PulseSoundEffects::Thread::receive() {
    Request request;
    while (::read(pipe_.reader.number(), &request, sizeof request) == sizeof request) {
        if (request.effect) {
            player_.play(*request.effect, request.requested);
        } else {
            player_.prepare();
        }
    }
}

PulseSoundEffects::PulseSoundEffects(QByteArray applicationID)
    : applicationID_(std::move(applicationID)) {}

PulseSoundEffects::~PulseSoundEffects() = default;

void PulseSoundEffects::send(std::optional<SoundEffect> effect) {
    if (!thread_) {
        thread_ = Thread::start(applicationID_);
    }
    if (thread_) {
        thread_->send(effect);
    }
}

}  // namespace Sound
