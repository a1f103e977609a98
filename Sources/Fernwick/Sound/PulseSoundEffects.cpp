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

namespace {

/// What travels through the pipe; without an effect it only asks for the connection.
struct Request {
    std::optional<SoundEffect> effect;
    PulsePlayer::Clock::time_point asked;
};
static_assert(std::is_trivially_copyable_v<Request>);

}  // namespace

/// The thread and the pipe into it. A pipe and not the library's lock: the thread holds that lock
/// whenever it works, and the caller must not wait even while it does.
class PulseSoundEffects::Loop {
public:
    [[nodiscard]] static std::unique_ptr<Loop> start(const QByteArray& applicationID);

    Loop(const Loop&) = delete;
    Loop& operator=(const Loop&) = delete;
    ~Loop();

    /// A full pipe drops the request; it could only have been late.
    void send(std::optional<SoundEffect> effect) {
        const Request request{effect, PulsePlayer::Clock::now()};
        static_cast<void>(!::write(sender_.number(), &request, sizeof request));
    }

private:
    Loop(pa_threaded_mainloop* thread, FileDescriptor receiver, FileDescriptor sender,
         const QByteArray& applicationID);

    static void requestsCame(pa_mainloop_api*, pa_io_event*, int, pa_io_event_flags_t, void* self) {
        static_cast<Loop*>(self)->receive();
    }

    void receive();

    pa_threaded_mainloop* thread_;
    FileDescriptor receiver_;
    FileDescriptor sender_;
    PulsePlayer player_;
    pa_io_event* event_;
};

std::unique_ptr<PulseSoundEffects::Loop> PulseSoundEffects::Loop::start(
    const QByteArray& applicationID) {
    std::array<int, 2> ends{};
    if (PulseLibrary::load() == nullptr || ::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return nullptr;
    }
    FileDescriptor receiver(ends[0]);
    FileDescriptor sender(ends[1]);
    pa_threaded_mainloop* thread = pulse().threaded_mainloop_new();
    if (thread == nullptr) {
        return nullptr;
    }
    // Owns the thread from here on, and frees it if it does not start.
    std::unique_ptr<Loop> loop(
        new Loop(thread, std::move(receiver), std::move(sender), applicationID));
    pulse().threaded_mainloop_set_name(thread, "sounds");
    return pulse().threaded_mainloop_start(thread) == 0 ? std::move(loop) : nullptr;
}

PulseSoundEffects::Loop::Loop(pa_threaded_mainloop* thread, FileDescriptor receiver,
                              FileDescriptor sender, const QByteArray& applicationID)
    : thread_(thread),
      receiver_(std::move(receiver)),
      sender_(std::move(sender)),
      player_(*pulse().threaded_mainloop_get_api(thread), applicationID) {
    pa_mainloop_api& api = *pulse().threaded_mainloop_get_api(thread);
    event_ = api.io_new(&api, receiver_.number(), PA_IO_EVENT_INPUT, requestsCame, this);
}

PulseSoundEffects::Loop::~Loop() {
    pulse().threaded_mainloop_stop(thread_);
    pulse().threaded_mainloop_get_api(thread_)->io_free(event_);
    player_.disconnect();
    pulse().threaded_mainloop_free(thread_);
}

void PulseSoundEffects::Loop::receive() {
    Request request;
    while (::read(receiver_.number(), &request, sizeof request) == sizeof request) {
        if (request.effect) {
            player_.play(*request.effect, request.asked);
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
        loop_->send(std::nullopt);
    }
}

void PulseSoundEffects::play(SoundEffect effect) {
    if (start()) {
        loop_->send(effect);
    }
}

bool PulseSoundEffects::start() {
    if (!loop_) {
        loop_ = Loop::start(applicationID_);
    }
    return loop_ != nullptr;
}
