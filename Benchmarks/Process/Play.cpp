#include <sys/resource.h>

#include <QApplication>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <iostream>

#include "App/ApplicationStyle.hpp"
#include "App/FernwickApp.hpp"
#include "Desktop/SessionBus.hpp"
#include "Fernwick/Painting/Games.hpp"
#include "Session/KeyCode.hpp"
#include "Sound/PulseSoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"

namespace {

using namespace std::chrono_literals;
using SnakeCore::Direction;

constexpr std::size_t cells = 60;
/// Until the window has come up, and until the first second of play is over.
constexpr auto untilPlay = 1500ms;
constexpr auto untilMeasured = 1000ms;

std::chrono::duration<double> processorTime() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

std::uint16_t keyOf(Direction direction) {
    switch (direction) {
        case Direction::up:
            return KeyCode::upArrow;
        case Direction::down:
            return KeyCode::downArrow;
        case Direction::left:
            return KeyCode::leftArrow;
        case Direction::right:
            return KeyCode::rightArrow;
    }
    return KeyCode::other;
}

/// Plays the program's own session on a tour of the board and says what that cost.
class Player : public QObject {
public:
    Player(Session& session, Pace pace, std::chrono::seconds duration)
        : session_(session), pace_(pace), duration_(duration) {
        QTimer::singleShot(untilPlay, this, &Player::play);
    }

private:
    void play() {
        connect(&session_, &Session::objectWillChange, this, &Player::steer, Qt::QueuedConnection);
        session_.pace = pace_;
        session_.loadBest();
        session_.start();
        // The one thing a player could not do: the snake is this long from the start.
        session_.game = Games::ofLength(cells);
        QTimer::singleShot(untilMeasured, this, &Player::beginMeasuring);
    }

    void steer() {
        const SnakeCore::Cell head = session_.game->snake().front();
        // A turn announces a change too.
        if (head != head_) {
            head_ = head;
            ++steps_;
            session_.key(keyOf(Games::onTour(session_.game)));
        }
    }

    void beginMeasuring() {
        steps_ = 0;
        used_ = processorTime();
        began_ = std::chrono::steady_clock::now();
        QTimer::singleShot(duration_, this, &Player::report);
    }

    void report() {
        const std::chrono::duration<double> used = processorTime() - used_;
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - began_;
        std::cout << "{\"used\": " << used.count() << ", \"passed\": " << passed.count()
                  << ", \"steps\": " << steps_ << ", \"cells\": " << session_.game->snake().size()
                  << ", \"running\": " << (session_.running ? "true" : "false") << "}\n";
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

// Play PACE SECONDS: the program as players get it, with someone who plays it and a snake of 60
// cells.
int main(int argc, char* argv[]) {
    const std::optional<Pace> pace = argc == 3 ? paceFromRawValue(argv[1]) : std::nullopt;
    if (!pace) {
        std::cerr << "usage: Play Gentle|Classic|Swift SECONDS\n";
        return EXIT_FAILURE;
    }
    leaveMissingSessionBusAlone();
    QApplication application(argc, argv);
    applyGardenStyle();
    PreferencesFile preferences(PreferencesFile::defaultPath());
    PulseSoundEffects soundEffects;
    FernwickApp fernwick(preferences, soundEffects);
    QObject::connect(&fernwick.window(), &GameWindow::appeared, &fernwick,
                     [&soundEffects] { soundEffects.prepare(); });
    const Player player(fernwick.session(), *pace, std::chrono::seconds(std::atoi(argv[2])));
    fernwick.show();
    return QApplication::exec();
}
