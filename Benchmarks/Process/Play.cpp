#include <sys/resource.h>

#include <QApplication>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <iostream>

#include "App/ApplicationStyle.hpp"
#include "App/FernwickApp.hpp"
#include "Desktop/Environment.hpp"
#include "Fernwick/Painting/Games.hpp"
#include "Sound/PulseSoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"

namespace {

using namespace std::chrono_literals;
using SnakeCore::Direction;

constexpr std::size_t cells = 60;
/// Time for the window to appear, and then the part of the run that is not measured.
constexpr auto untilPlay = 1500ms;
constexpr auto untilMeasured = 1000ms;

std::chrono::duration<double> cpuTime() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Steers the snake around the board and prints the CPU time that the program used, as JSON.
class Player : public QObject {
public:
    Player(Session& session, Pace pace, std::chrono::seconds duration)
        : session_(session), pace_(pace), duration_(duration) {
        QTimer::singleShot(untilPlay, this, &Player::play);
    }

private:
    void play() {
        session_.choosePace(pace_);
        session_.start();
        growSnake();
        connect(&session_, &Session::changed, this, &Player::steer, Qt::QueuedConnection);
        QTimer::singleShot(untilMeasured, this, &Player::beginMeasuring);
    }

    /// Plays the start of the run without waiting for the timer.
    void growSnake() {
        auto* timer = session_.findChild<QTimer*>();
        while (session_.game().snake().size() < cells) {
            turn();
            QMetaObject::invokeMethod(timer, "timeout");
        }
        // For the first step that the timer makes.
        turn();
    }

    void turn() { session_.key(static_cast<GameKey>(alongCycle(session_.game()))); }

    void steer() {
        const SnakeCore::Cell head = session_.game().snake().front();
        // The session also emits changed() for turns.
        if (head != head_) {
            head_ = head;
            ++steps_;
            turn();
        }
    }

    void beginMeasuring() {
        steps_ = 0;
        used_ = cpuTime();
        began_ = std::chrono::steady_clock::now();
        QTimer::singleShot(duration_, this, &Player::report);
    }

    void report() {
        const std::chrono::duration<double> used = cpuTime() - used_;
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - began_;
        std::cout << "{\"used\": " << used.count() << ", \"passed\": " << passed.count()
                  << ", \"steps\": " << steps_ << ", \"cells\": " << session_.game().snake().size()
                  << ", \"running\": " << (session_.running() ? "true" : "false") << "}\n";
        QCoreApplication::quit();
    }

    Session& session_;
    Pace pace_;
    std::chrono::seconds duration_;
    SnakeCore::Cell head_{};
    int steps_ = 0;
    std::chrono::duration<double> used_{};
    std::chrono::steady_clock::time_point began_;
};

}  // namespace

// Play PACE SECONDS: the whole program, with a simulated player and a snake of 60 cells.
int main(int argc, char* argv[]) {
    const std::optional<Pace> pace = argc == 3 ? paceFromRawValue(argv[1]) : std::nullopt;
    if (!pace) {
        std::cerr << "usage: Play Gentle|Classic|Swift SECONDS\n";
        return EXIT_FAILURE;
    }
    Desktop::prepareEnvironment();
    QApplication application(argc, argv);
    applyGardenStyle();
    Storage::PreferencesFile preferences(Storage::PreferencesFile::defaultPath());
    Sound::PulseSoundEffects soundEffects("org.fernwick.fernwick");
    FernwickApp fernwick(preferences, soundEffects);
    QObject::connect(&fernwick.window(), &GameWindow::appeared, &fernwick,
                     [&soundEffects] { soundEffects.prepare(); });
    const Player player(fernwick.session(), *pace, std::chrono::seconds(std::atoi(argv[2])));
    fernwick.show();
    return QApplication::exec();
}
