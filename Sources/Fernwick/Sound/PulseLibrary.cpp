#include "Sound/PulseLibrary.hpp"

#include <QLibrary>
#include <optional>
#include <type_traits>

#include "Sound/Log.hpp"

namespace Sound {

Q_LOGGING_CATEGORY(soundLog, "fernwick.sound", QtFatalMsg)

namespace {

std::optional<PulseLibrary> find() {
    constexpr int version = 0;
    // QLibrary does not unload it on destruction.
    QLibrary file(QStringLiteral("pulse"), version);
    PulseLibrary found{};
    bool complete = true;
    const auto resolve = [&](auto& function, const char* name) {
        function = reinterpret_cast<std::decay_t<decltype(function)>>(file.resolve(name));
        complete = complete && function != nullptr;
    };
#define FERNWICK_PULSE_RESOLVE(name) resolve(found.name, "pa_" #name);
    FERNWICK_PULSE_FUNCTIONS(FERNWICK_PULSE_RESOLVE)
#undef FERNWICK_PULSE_RESOLVE
    if (!complete) {
        qCWarning(soundLog, "libpulse is missing: %s", qUtf8Printable(file.errorString()));
        return std::nullopt;
    }
    return found;
}

}  // namespace

const PulseLibrary* PulseLibrary::load() {
    static const std::optional<PulseLibrary> library = find();
    return library ? &*library : nullptr;
}

const PulseLibrary& pulse() {
    return *PulseLibrary::load();
}

}  // namespace Sound
