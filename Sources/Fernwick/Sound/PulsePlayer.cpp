#include "Sound/PulsePlayer.hpp"

#include <QByteArray>
#include <algorithm>
#include <memory>
#include <utility>

#include "Sound/Log.hpp"
#include "Sound/PulseLibrary.hpp"
#include "Sound/SoundWave.hpp"

namespace Sound {

namespace {

using Proplist = std::unique_ptr<pa_proplist, decltype(PulseLibrary::proplist_free)>;

/// With a longer delay, sound and picture no longer seem to belong together.
constexpr std::chrono::milliseconds maximumDelay{150};

const char* titleOf(SoundEffect effect) {
    return effect == SoundEffect::pop ? "Pop" : "Tink";
}

/// Whether it is too late to play an effect requested at `since`; logs that it is dropped.
bool dropIfLate(SoundEffect effect, PulsePlayer::Clock::time_point since) {
    const bool late = PulsePlayer::Clock::now() - since > maximumDelay;
    if (late) {
        qCDebug(soundLog, "dropped %s: too late", titleOf(effect));
    }
    return late;
}

std::size_t sizeOf(const std::vector<std::int16_t>& wave) {
    return wave.size() * sizeof wave.front();
}

/// The effect's name in the server's sample cache.
const char* nameOf(SoundEffect effect) {
    return effect == SoundEffect::pop ? "fernwick-pop" : "fernwick-tink";
}

/// What volume mixers show.
Proplist properties(std::initializer_list<std::pair<const char*, const char*>> values) {
    Proplist list(pulse().proplist_new(), pulse().proplist_free);
    for (const auto& [key, value] : values) {
        pulse().proplist_sets(list.get(), key, value);
    }
    return list;
}

}  // namespace

PulsePlayer::PulsePlayer(pa_mainloop_api& loop, QByteArray applicationID)
    : loop_(loop),
      applicationID_(std::move(applicationID)),
      samples_{Sample{.player = this, .effect = SoundEffect::pop},
               Sample{.player = this, .effect = SoundEffect::tink}} {}

void PulsePlayer::prepare() {
    if (context_ == nullptr) {
        connect();
    } else if (pulse().context_get_state(context_) == PA_CONTEXT_READY) {
        uploadMissing();
    }
}

void PulsePlayer::play(SoundEffect effect, Clock::time_point requested) {
    if (dropIfLate(effect, requested)) {
        return;
    }
    waiting_.push_back({effect, requested});
    prepare();
    startWaiting();
}

void PulsePlayer::connect() {
    const Proplist list = properties({{PA_PROP_APPLICATION_NAME, "Fernwick"},
                                      {PA_PROP_APPLICATION_ID, applicationID_.constData()},
                                      {PA_PROP_APPLICATION_ICON_NAME, applicationID_.constData()}});
    context_ = pulse().context_new_with_proplist(&loop_, nullptr, list.get());
    if (context_ == nullptr) {
        qCWarning(soundLog, "could not create a libpulse context");
        return;
    }
    pulse().context_set_state_callback(context_, contextChanged, this);
    const int result = pulse().context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
    // Some failures have reached `contextChanged` within that call.
    if (result < 0 && context_ != nullptr) {
        fail("could not connect to the sound server");
    }
}

void PulsePlayer::fail(const char* what) {
    qCWarning(soundLog, "%s: %s", what, pulse().strerror(pulse().context_errno(context_)));
    disconnect();
}

void PulsePlayer::disconnect() {
    for (Sample& sample : samples_) {
        releaseUpload(sample);
        sample.ready = false;
    }
    waiting_.clear();
    pending_ = 0;
    if (pa_context* context = std::exchange(context_, nullptr)) {
        pulse().context_set_state_callback(context, nullptr, nullptr);
        pulse().context_disconnect(context);
        pulse().context_unref(context);
    }
}

void PulsePlayer::contextChanged(pa_context* context, void* player) {
    auto& self = *static_cast<PulsePlayer*>(player);
    const pa_context_state_t state = pulse().context_get_state(context);
    if (state == PA_CONTEXT_READY) {
        qCDebug(soundLog, "connected to the sound server");
        self.uploadMissing();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        self.fail("no connection to the sound server");
    }
}

void PulsePlayer::uploadMissing() {
    for (Sample& sample : samples_) {
        if (!sample.ready && sample.upload == nullptr) {
            upload(sample);
        }
    }
}

void PulsePlayer::upload(Sample& sample) {
    constexpr pa_sample_spec format{.format = PA_SAMPLE_S16NE, .rate = sampleRate, .channels = 1};
    sample.wave = soundWave(sample.effect);
    const Proplist list =
        properties({{PA_PROP_MEDIA_NAME, titleOf(sample.effect)}, {PA_PROP_MEDIA_ROLE, "game"}});
    sample.upload = pulse().stream_new_with_proplist(context_, nameOf(sample.effect), &format,
                                                     nullptr, list.get());
    if (sample.upload == nullptr) {
        return;
    }
    pulse().stream_set_state_callback(sample.upload, uploadChanged, &sample);
    if (pulse().stream_connect_upload(sample.upload, sizeOf(sample.wave)) < 0) {
        releaseUpload(sample);
    }
}

void PulsePlayer::uploadChanged(pa_stream* stream, void* data) {
    auto& sample = *static_cast<Sample*>(data);
    const pa_stream_state_t state = pulse().stream_get_state(stream);
    if (state == PA_STREAM_READY) {
        const bool written = pulse().stream_write(stream, sample.wave.data(), sizeOf(sample.wave),
                                                  nullptr, 0, PA_SEEK_RELATIVE) >= 0 &&
                             pulse().stream_finish_upload(stream) >= 0;
        if (!written) {
            qCWarning(soundLog, "could not upload %s", titleOf(sample.effect));
            sample.player->releaseUpload(sample);
        }
    } else if (!PA_STREAM_IS_GOOD(state) && state != PA_STREAM_UNCONNECTED) {
        sample.player->releaseUpload(sample);
        sample.ready = state == PA_STREAM_TERMINATED;
        qCDebug(soundLog, "%s %s", titleOf(sample.effect),
                sample.ready ? "uploaded" : "not accepted by the server");
        sample.player->startWaiting();
    }
}

void PulsePlayer::releaseUpload(Sample& sample) {
    sample.wave = {};
    if (pa_stream* stream = std::exchange(sample.upload, nullptr)) {
        pulse().stream_set_state_callback(stream, nullptr, nullptr);
        pulse().stream_unref(stream);
    }
}

void PulsePlayer::startWaiting() {
    for (const Waiting& waiting : std::exchange(waiting_, {})) {
        if (dropIfLate(waiting.effect, waiting.requested)) {
            continue;
        }
        if (std::ranges::find(samples_, waiting.effect, &Sample::effect)->ready) {
            start(waiting.effect);
        } else {
            waiting_.push_back(waiting);
        }
    }
}

void PulsePlayer::start(SoundEffect effect) {
    // A server that has stopped replying would play all requests at once when it resumes.
    if (pending_ > 0 && dropIfLate(effect, lastReply_)) {
        return;
    }
    pa_operation* operation = pulse().context_play_sample(context_, nameOf(effect), nullptr,
                                                          PA_VOLUME_INVALID, playConfirmed, this);
    if (operation == nullptr) {
        return;
    }
    pulse().operation_unref(operation);
    if (pending_++ == 0) {
        lastReply_ = Clock::now();
    }
}

void PulsePlayer::playConfirmed(pa_context* context, int success, void* player) {
    auto& self = *static_cast<PulsePlayer*>(player);
    --self.pending_;
    self.lastReply_ = Clock::now();
    if (success != 0) {
        return;
    }
    const int error = pulse().context_errno(context);
    if (error == PA_ERR_TIMEOUT) {
        self.fail("no reply from the sound server");
        return;
    }
    // The server may have dropped its sample cache: upload the effects again before the next play.
    qCWarning(soundLog, "not played: %s", pulse().strerror(error));
    for (Sample& sample : self.samples_) {
        sample.ready = false;
    }
}

}  // namespace Sound
