#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "Support/ChildProcess.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/TemporaryFolder.hpp"

/// Asks `condition` again and again for up to ten seconds; its last answer.
template <typename Condition>
[[nodiscard]] bool eventually(Condition condition) {
    constexpr std::chrono::seconds patience{10};
    constexpr std::chrono::milliseconds pause{10};
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return condition();
        }
        std::this_thread::sleep_for(pause);
    }
    return true;
}

/// A desktop session of its own, as far as sound goes: while it lives, this process finds no
/// sound server but the one started here, whose only loudspeaker is silent and can be recorded.
class SoundServer {
public:
    SoundServer()
        : runtime_("XDG_RUNTIME_DIR", folder_.path().c_str()),
          home_("HOME", folder_.path().c_str()),
          address_("PULSE_SERVER", ("unix:" + socket().native()).c_str()) {}

    /// False when it does not come up.
    [[nodiscard]] bool start() {
        // Without rewinding, what has been recorded is what was played.
        process_ = std::make_unique<ChildProcess>(std::vector<std::string>{
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
            "--disable-shm=yes", "-L",
            "module-null-sink sink_name=quiet rate=48000 channels=1 norewinds=1", "-L",
            "module-native-protocol-unix auth-anonymous=1 socket=" + socket().native()});
        return eventually([] { return !ask({"info"}).empty(); });
    }

    void kill() {
        process_->kill();
        std::filesystem::remove(socket());
    }
    void hang() { process_->send(SIGSTOP); }
    void goOn() { process_->send(SIGCONT); }

    /// True once the server holds both effects.
    [[nodiscard]] static bool hasBothEffects() {
        const std::string samples = ask({"list", "short", "samples"});
        return samples.find("fernwick-pop") != std::string::npos &&
               samples.find("fernwick-tink") != std::string::npos;
    }

    /// What the server tells mixers of those who use it.
    [[nodiscard]] static std::string clients() { return ask({"list", "clients"}); }

    /// The folder in which programs look for the server.
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_.path(); }

private:
    [[nodiscard]] std::filesystem::path socket() const { return folder_.path() / "native"; }

    [[nodiscard]] static std::string ask(std::vector<std::string> question) {
        question.insert(question.begin(), "pactl");
        ChildProcess tool(question);
        return tool.output();
    }

    TemporaryFolder folder_;
    EnvironmentVariable runtime_;
    EnvironmentVariable home_;
    EnvironmentVariable address_;
    std::unique_ptr<ChildProcess> process_;
};
