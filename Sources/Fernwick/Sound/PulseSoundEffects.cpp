#include "Sound/PulseSoundEffects.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <QByteArray>
#include <array>
#include <optional>
#include <type_traits>

#include "Posix/FileDescriptor.hpp"
#include "Sound/PulseLibrary.hpp"
#include "Sound/PulsePlayer.hpp"

using Posix::FileDescriptor;

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
        static_cast<void>(!::write(sender_.number(), &request, sizeof request));
    }

private:
    Thread(pa_threaded_mainloop* loop, FileDescriptor receiver, FileDescriptor sender,
           const QByteArray& applicationID);

    static void requestsArrived(pa_mainloop_api*, pa_io_event*, int, pa_io_event_flags_t,
                                void* self) {
        static_cast<Thread*>(self)->receive();
    }

    void receive();

    pa_threaded_mainloop* loop_;
    FileDescriptor receiver_;
    FileDescriptor sender_;
    PulsePlayer player_;
    pa_io_event* event_;
};

std::unique_ptr<PulseSoundEffects::Thread> PulseSoundEffects::Thread::start(
    const QByteArray& applicationID) {
    std::array<int, 2> ends{};
    if (PulseLibrary::load() == nullptr || ::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return nullptr;
    }
    FileDescriptor receiver(ends[0]);
    FileDescriptor sender(ends[1]);
    pa_threaded_mainloop* loop = pulse().threaded_mainloop_new();
    if (loop == nullptr) {
        return nullptr;
    }
    // Owns the loop from here on, and frees it if its thread does not start.
    std::unique_ptr<Thread> thread(
        new Thread(loop, std::move(receiver), std::move(sender), applicationID));
    pulse().threaded_mainloop_set_name(loop, "sounds");
    return pulse().threaded_mainloop_start(loop) == 0 ? std::move(thread) : nullptr;
}

PulseSoundEffects::Thread::Thread(pa_threaded_mainloop* loop, FileDescriptor receiver,
                                  FileDescriptor sender, const QByteArray& applicationID)
    : loop_(loop),
      receiver_(std::move(receiver)),
      sender_(std::move(sender)),
      player_(*pulse().threaded_mainloop_get_api(loop), applicationID) {
    pa_mainloop_api& api = *pulse().threaded_mainloop_get_api(loop);
    event_ = api.io_new(&api, receiver_.number(), PA_IO_EVENT_INPUT, requestsArrived, this);
}

PulseSoundEffects::Thread::~Thread() {
    pulse().threaded_mainloop_stop(loop_);
    pulse().threaded_mainloop_get_api(loop_)->io_free(event_);
    player_.disconnect();
    pulse().threaded_mainloop_free(loop_);
}

void PulseSoundEffects::Thread::receive() {
    Request request;
    while (::read(receiver_.number(), &request, sizeof request) == sizeof request) {
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

void PulseSoundEffects::prepare() {
    if (start()) {
        thread_->send(std::nullopt);
    }
}

void PulseSoundEffects::play(SoundEffect effect) {
    if (start()) {
        thread_->send(effect);
    }
}

bool PulseSoundEffects::start() {
    if (!thread_) {
        thread_ = Thread::start(applicationID_);
    }
    return thread_ != nullptr;
}

}  // namespace Sound
