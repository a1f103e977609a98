#include "Session/HeldKeys.hpp"

#include <QKeyEvent>

#include "Session/Session.hpp"

namespace {

/// The physical key if the event tells it: Shift changes Qt's key while a key is held.
quint64 identity(const QKeyEvent& event) {
    constexpr quint64 noScanCode = quint64{1} << 32;
    return event.nativeScanCode() != 0 ? event.nativeScanCode()
                                       : noScanCode | static_cast<quint32>(event.key());
}

// Keyboards repeat later, even with the shortest delay that desktops offer. Programs release a key
// at once and may press it again in the same millisecond.
constexpr quint64 shortestRepeatDelay = 100;

}  // namespace

// For an auto-repeat the X server sends a release and a press of the same time. Under load, Qt
// often handles the release before the press has arrived and then takes both for real ones.
bool HeldKeys::Key::repeatsAt(quint64 time) const {
    return releaseTime == time && time - pressTime >= shortestRepeatDelay;
}

bool HeldKeys::isOutdated(const QKeyEvent& press, const Session& session) {
    const Stage stage{session.runID(), session.awaitingName()};
    const auto known = keys_.find(identity(press));
    bool repeats = press.isAutoRepeat();
    if (known != keys_.end() && known->second.repeatsAt(press.timestamp())) {
        repeats = true;
        known->second.releaseTime.reset();
    }
    if (repeats && known != keys_.end() && !known->second.releaseTime) {
        return known->second.stage != stage;
    }
    if (repeats && stage.awaitingName) {
        // Pressed in another window, so not meant for the name field.
        return true;
    }
    keys_.insert_or_assign(identity(press), Key{stage, press.timestamp(), std::nullopt});
    return false;
}

void HeldKeys::release(const QKeyEvent& release) {
    const auto known = keys_.find(identity(release));
    if (known != keys_.end() && !release.isAutoRepeat()) {
        known->second.releaseTime = release.timestamp();
    }
}
