#include "Session/Session.hpp"

#include <QTimer>
#include <algorithm>
#include <exception>
#include <string>
#include <utility>

#include "Session/MainThread.hpp"
#include "Session/Preferences.hpp"
#include "Session/SoundEffects.hpp"
#include "Session/StoredScores.hpp"

namespace {

const QString playerNameKey = QStringLiteral("player-name");
const QString soundKey = QStringLiteral("sound");

}  // namespace

Session::Session(Preferences& preferences, SoundEffects& soundEffects, Step step)
    : preferences_(preferences),
      soundEffects_(soundEffects),
      step_(std::move(step)),
      game_(columns, rows),
      best_(preferences.integer(bestKey(pace_))),
      sound_(preferences.boolean(soundKey).value_or(true)),
      scores_(storedScores(preferences)),
      storedScoresAreDamaged_(storedScoresAreDamaged(preferences, scores_)),
      playerName_(preferences.text(playerNameKey).value_or(QString())),
      runID_(SnakeCore::UUID::random()) {}

Session::~Session() = default;

bool Session::hasStoredScores() const {
    return preferences_.contains(highScoresKey) || std::ranges::any_of(allPaces, [this](Pace pace) {
               return preferences_.contains(bestKey(pace));
           });
}

void Session::start() {
    if (awaitingName() || sheet_ != Sheet::none) {
        return;
    }
    runID_ = SnakeCore::UUID::random();
    runPace_ = pace_;
    game_ = SnakeCore::Game(columns, rows);
    phase_ = Phase::running;
    schedule();
    Q_EMIT changed();
}

void Session::pause() {
    if (inRun() && sheet_ == Sheet::none) {
        togglePause();
        Q_EMIT changed();
    }
}

void Session::togglePause() {
    if (running()) {
        phase_ = Phase::paused;
        stopTimer();
    } else {
        phase_ = Phase::running;
        schedule();
    }
}

void Session::choosePace(Pace pace) {
    pace_ = pace;
    best_ = preferences_.integer(bestKey(pace));
    Q_EMIT changed();
}

void Session::editName(const QString& name) {
    if (name != playerName_) {
        playerName_ = name;
        Q_EMIT changed();
    }
}

void Session::saveScore() {
    const std::string name = playerName_.toStdString();
    if (!awaitingName() ||
        !scores_.record(runID_, name, game_.score(), rawValue(runPace_), SnakeCore::Date::now())) {
        return;
    }
    try {
        const std::string encoded = scores_.encoded();
        if (std::exchange(storedScoresAreDamaged_, false)) {
            preferences_.keepCopy();
        }
        preferences_.store(highScoresKey, QByteArray::fromStdString(encoded));
    } catch (const std::exception&) {
        // The next save that succeeds stores this entry, too.
    }
    playerName_ = QString::fromStdString(SnakeCore::HighScores::cleanName(name));
    preferences_.store(playerNameKey, playerName_);
    phase_ = Phase::saved;
    Q_EMIT changed();
}

void Session::skipSaving() {
    if (awaitingName()) {
        phase_ = Phase::skipped;
        Q_EMIT changed();
    }
}

void Session::openSheet(Sheet sheet) {
    if (running()) {
        togglePause();
    }
    scorePace_ = pace_;
    sheet_ = sheet;
    Q_EMIT changed();
}

void Session::closeSheet() {
    if (sheet_ != Sheet::none) {
        sheet_ = Sheet::none;
        Q_EMIT changed();
    }
}

void Session::closeScores() {
    if (showingScores()) {
        closeSheet();
    }
}

void Session::chooseScorePace(Pace pace) {
    if (pace != scorePace_) {
        scorePace_ = pace;
        Q_EMIT changed();
    }
}

void Session::setSound(bool on) {
    if (on != sound_) {
        sound_ = on;
        preferences_.store(soundKey, on);
        Q_EMIT changed();
    }
}

void Session::setHeld(bool held) {
    if (held == held_) {
        return;
    }
    held_ = held;
    if (held) {
        stopTimer();
    } else if (running()) {
        timer_->start();
    }
}

void Session::schedule() {
    timer_ = std::make_unique<QTimer>(this);
    timer_->setTimerType(Qt::PreciseTimer);
    timer_->setInterval(tickInterval(pace_));
    connect(timer_.get(), &QTimer::timeout, this, [this] {
        assertMainThread();
        tick();
    });
    if (!held_) {
        timer_->start();
    }
}

void Session::stopTimer() {
    if (timer_) {
        timer_->stop();
    }
}

void Session::tick() {
    if (!running() || held_) {
        return;
    }
    const std::int64_t before = game_.score();
    step_(game_);
    if (game_.score() > before) {
        play(SoundEffect::pop);
        if (best_ < game_.score()) {
            best_ = game_.score();
            preferences_.store(bestKey(pace_), QCborValue(qint64{best_}));
        }
    }
    if (game_.ended()) {
        phase_ = Phase::awaitingName;
        stopTimer();
        play(SoundEffect::tink);
    }
    Q_EMIT changed();
}

void Session::play(SoundEffect effect) {
    if (sound_) {
        soundEffects_.play(effect);
    }
}

bool Session::key(GameKey key) {
    if (awaitingName() || sheet_ != Sheet::none) {
        return false;
    }
    switch (key) {
        case GameKey::up:
        case GameKey::down:
        case GameKey::left:
        case GameKey::right:
            if (running()) {
                game_.turn(static_cast<SnakeCore::Direction>(key));
                Q_EMIT changed();
            }
            break;
        case GameKey::space:
            inRun() ? pause() : start();
            break;
        case GameKey::escape:
            if (running()) {
                pause();
            }
            break;
        case GameKey::restart:
            start();
            break;
    }
    return true;
}
