#include "Sound/PulseLibrary.hpp"

#include "Sound/Log.hpp"

namespace Sound {

const PulseLibrary* PulseLibrary::load() {
    static const auto* const library = [] {
        static const PulseLibrary found;
        if (!found.complete_) {
            qCWarning(soundLog, "libpulse is missing: %s",
                      qUtf8Printable(found.file_.errorString()));
        }
        return found.complete_ ? &found : nullptr;
    }();
    return library;
}

const PulseLibrary& pulse() {
    return *PulseLibrary::load();
}

}  // namespace Sound
