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

/// Polls `condition` until it is true, for at most ten seconds. Returns its last value.
template <typename Condition>
[[nodiscard]] bool eventually(Condition condition) {
    constexpr std::chrono::seconds timeout{10};
    constexpr std::chrono::milliseconds pause{10};
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return condition();
        }
        std::this_thread::sleep_for(pause);
    }
    return true;
}

/// A private PulseAudio server with a null sink that can be recorded. While this object exists, the
/// process can connect to no other sound server, and before `start` to none at all.
class SoundServer {
public:
    SoundServer()
        : runtime_("XDG_RUNTIME_DIR", folder_.path().c_str()),
          home_("HOME", folder_.path().c_str()),
          address_("PULSE_SERVER", ("unix:" + socket().native()).c_str()) {}

    /// Returns false if the server does not start.
    [[nodiscard]] bool start() {
        // Without norewinds the server may rewrite samples that have already been recorded.
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
    void resume() { process_->send(SIGCONT); }

    /// Whether both effects have been uploaded.
    [[nodiscard]] static bool hasBothEffects() {
        const std::string samples = ask({"list", "short", "samples"});
        return samples.find("fernwick-pop") != std::string::npos &&
               samples.find("fernwick-tink") != std::string::npos;
    }

    /// The clients as volume mixers see them.
    [[nodiscard]] static std::string clients() { return ask({"list", "clients"}); }

private:
    [[nodiscard]] std::filesystem::path socket() const { return folder_.path() / "native"; }

    [[nodiscard]] static std::string ask(std::vector<std::string> command) {
        command.insert(command.begin(), "pactl");
        ChildProcess tool(command);
        return tool.output();
    }

    TemporaryFolder folder_;
    EnvironmentVariable runtime_;
    EnvironmentVariable home_;
    EnvironmentVariable address_;
    std::unique_ptr<ChildProcess> process_;
};
