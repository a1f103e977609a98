#include "Session/Session.hpp"

#include <QTimer>
#include <exception>
#include <string>

#include "Session/KeyCode.hpp"
#include "Session/KeyMonitor.hpp"
#include "Session/MainThread.hpp"
#include "Session/Preferences.hpp"
#include "Session/SoundEffects.hpp"

namespace {

const QString highScoresKey = QStringLiteral("high-scores-v1");
const QString playerNameKey = QStringLiteral("player-name");
const QString soundKey = QStringLiteral("sound");

SnakeCore::Game freshGame() {
    return {Session::columns, Session::rows};
}

SnakeCore::HighScores storedScores(const Preferences& preferences) {
    const std::optional<QByteArray> bytes = preferences.bytes(highScoresKey);
    return bytes ? SnakeCore::HighScores(std::string_view(bytes->constData(),
                                                          static_cast<std::size_t>(bytes->size())))
                 : SnakeCore::HighScores();
}

}  // namespace

Session::Session(Preferences& preferences, SoundEffects& soundEffects)
    : game(*this, freshGame()),
      running(*this, false),
      started(*this, false),
      pace(*this, Pace::classic),
      best(*this, 0),
      sound(*this, preferences.boolean(soundKey).value_or(true)),
      scores(*this, storedScores(preferences)),
      playerName(*this, preferences.text(playerNameKey).value_or(QString())),
      awaitingName(*this, false),
      showingScores(*this, false),
      scorePace(*this, Pace::classic),
      savedRun(*this, false),
      preferences_(preferences),
      soundEffects_(soundEffects),
      runID_(SnakeCore::UUID::random()) {
    loadBest();
}

Session::~Session() = default;

void Session::loadBest() {
    best = preferences_.integer(bestKey(pace));
}

void Session::switchSound(bool on) {
    if (sound == on) {
        return;
    }
    sound = on;
    preferences_.store(soundKey, on);
}

void Session::saveScore() {
    if (!awaitingName) {
        return;
    }
    const std::string name = playerName->toStdString();
    const bool recorded = scores.mutate([&](SnakeCore::HighScores& table) {
        return table.record(runID_, name, game->score(), rawValue(runPace_),
                            SnakeCore::Date::now());
    });
    if (!recorded) {
        return;
    }
    try {
        preferences_.store(highScoresKey, QByteArray::fromStdString(scores->encoded()));
    } catch (const std::exception&) {
        // The table in memory stays ahead of the stored one until the next save that succeeds.
    }
    playerName = QString::fromStdString(SnakeCore::HighScores::cleanName(name));
    preferences_.store(playerNameKey, playerName.get());
    savedRun = true;
    awaitingName = false;
}

void Session::skipSaving() {
    awaitingName = false;
}

void Session::start() {
    if (awaitingName || showingScores) {
        return;
    }
    runID_ = SnakeCore::UUID::random();
    runPace_ = pace;
    savedRun = false;
    game = freshGame();
    started = true;
    running = true;
    schedule();
}

void Session::pause() {
    if (!started || game->ended() || showingScores) {
        return;
    }
    running = !running;
    if (running) {
        schedule();
    } else {
        stopTimer();
    }
}

void Session::openScores() {
    if (running) {
        pause();
    }
    scorePace = pace.get();
    showingScores = true;
}

void Session::schedule() {
    timer_ = std::make_unique<QTimer>(this);
    timer_->setTimerType(Qt::PreciseTimer);
    timer_->setInterval(tickInterval(pace));
    connect(timer_.get(), &QTimer::timeout, this, [this] {
        assertMainThread();
        tick();
    });
    timer_->start();
}

void Session::stopTimer() {
    if (timer_) {
        timer_->stop();
    }
}

void Session::tick() {
    if (!running) {
        return;
    }
    const std::int64_t before = game->score();
    game.mutate([](SnakeCore::Game& run) { run.step(); });
    if (game->score() > before) {
        play(SoundEffect::pop);
        if (best < game->score()) {
            best = game->score();
            preferences_.store(bestKey(pace), QCborValue(qint64{best}));
        }
    }
    if (game->ended()) {
        awaitingName = true;
        running = false;
        stopTimer();
        play(SoundEffect::tink);
    }
}

void Session::play(SoundEffect effect) {
    if (sound) {
        soundEffects_.play(effect);
    }
}

void Session::turn(SnakeCore::Direction direction) {
    if (running) {
        game.mutate([direction](SnakeCore::Game& run) { run.turn(direction); });
    }
}

void Session::installKeys() {
    if (!monitor_) {
        monitor_ = std::make_unique<KeyMonitor>(*this);
    }
}

bool Session::key(std::uint16_t code) {
    if (awaitingName || showingScores) {
        return false;
    }
    switch (code) {
        case KeyCode::upArrow:
        case KeyCode::w:
            turn(SnakeCore::Direction::up);
            return true;
        case KeyCode::downArrow:
        case KeyCode::s:
            turn(SnakeCore::Direction::down);
            return true;
        case KeyCode::leftArrow:
        case KeyCode::a:
            turn(SnakeCore::Direction::left);
            return true;
        case KeyCode::rightArrow:
        case KeyCode::d:
            turn(SnakeCore::Direction::right);
            return true;
        case KeyCode::space:
            if (!started || game->ended()) {
                start();
            } else {
                pause();
            }
            return true;
        case KeyCode::escape:
            if (running) {
                pause();
            }
            return true;
        case KeyCode::r:
            start();
            return true;
        default:
            return false;
    }
}
