#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Session/Pace.hpp"
#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "SnakeCore/ReferenceGame.hpp"

/// What a session must be like after any row of actions, told a second time in the plainest way:
/// one state, one reference game, and what each action does to them.
struct SessionModel {
    Session::Phase state = Session::Phase::fresh;
    bool sheet = false;
    Pace pace = Pace::classic;
    Pace runPace = Pace::classic;
    Pace scorePace = Pace::classic;
    bool sound = true;
    std::array<std::int64_t, 3> bests{};
    std::size_t savedRuns = 0;
    SnakeCore::ReferenceGame game{28, 22};
    std::vector<SoundEffect> heard;

    [[nodiscard]] std::int64_t& best() { return bests[static_cast<std::size_t>(pace)]; }

    [[nodiscard]] bool isLive() const {
        return state == Session::Phase::running || state == Session::Phase::paused;
    }
    /// The speed buttons are greyed in the middle of a run and while a name is awaited.
    [[nodiscard]] bool offersPaces() const {
        return !isLive() && state != Session::Phase::awaitingName;
    }
    [[nodiscard]] bool takesKeys() const { return state != Session::Phase::awaitingName && !sheet; }

    /// A new session over what the last one has stored.
    void launch() {
        state = Session::Phase::fresh;
        sheet = false;
        pace = runPace = scorePace = Pace::classic;
        game = SnakeCore::ReferenceGame(28, 22);
    }

    void start() {
        if (state == Session::Phase::awaitingName || sheet) {
            return;
        }
        state = Session::Phase::running;
        runPace = pace;
        game = SnakeCore::ReferenceGame(28, 22);
    }

    void pause() {
        if (!isLive() || sheet) {
            return;
        }
        state = state == Session::Phase::running ? Session::Phase::paused : Session::Phase::running;
    }

    void leave() {
        if (state == Session::Phase::running) {
            state = Session::Phase::paused;
        }
    }

    void openScores() {
        leave();
        sheet = true;
        scorePace = pace;
    }

    void turn(SnakeCore::Direction direction) {
        if (state == Session::Phase::running && takesKeys()) {
            game.turn(direction);
        }
    }

    void space() {
        if (!takesKeys()) {
            return;
        }
        if (isLive()) {
            pause();
        } else {
            start();
        }
    }

    void escape() {
        if (takesKeys()) {
            leave();
        }
    }

    void restart() {
        if (takesKeys()) {
            start();
        }
    }

    void save(bool nameIsBlank) {
        if (state == Session::Phase::awaitingName && !nameIsBlank) {
            state = Session::Phase::saved;
            ++savedRuns;
        }
    }

    void skip() {
        if (state == Session::Phase::awaitingName) {
            state = Session::Phase::skipped;
        }
    }

    /// `generator` lays the next fruit somewhere; where the session laid it is for the caller.
    template <typename Generator>
    void tick(Generator& generator) {
        if (state != Session::Phase::running) {
            return;
        }
        const std::int64_t before = game.score;
        game.step(generator);
        if (game.score > before) {
            play(SoundEffect::pop);
            best() = std::max(best(), game.score);
        }
        if (game.ended) {
            state = Session::Phase::awaitingName;
            play(SoundEffect::tink);
        }
    }

private:
    void play(SoundEffect effect) {
        if (sound) {
            heard.push_back(effect);
        }
    }
};
