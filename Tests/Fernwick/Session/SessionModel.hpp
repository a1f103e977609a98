#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Session/Pace.hpp"
#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "SnakeCore/ReferenceGame.hpp"

/// A plain second implementation of Session over a reference game, to compare against after any
/// sequence of operations.
struct SessionModel {
    Session::Phase phase = Session::Phase::fresh;
    bool showingScores = false;
    bool held = false;
    Pace pace = Pace::classic;
    Pace runPace = Pace::classic;
    Pace scorePace = Pace::classic;
    bool sound = true;
    std::array<std::int64_t, 3> bests{};
    std::size_t savedRuns = 0;
    SnakeCore::ReferenceGame game{28, 22};
    std::vector<SoundEffect> played;

    [[nodiscard]] std::int64_t& best() { return bests[static_cast<std::size_t>(pace)]; }

    [[nodiscard]] bool inRun() const {
        return phase == Session::Phase::running || phase == Session::Phase::paused;
    }
    /// The speed buttons are disabled during a run and while waiting for a name.
    [[nodiscard]] bool canChoosePace() const {
        return !inRun() && phase != Session::Phase::awaitingName;
    }
    [[nodiscard]] bool advances() const { return phase == Session::Phase::running && !held; }
    [[nodiscard]] bool handlesKeys() const {
        return phase != Session::Phase::awaitingName && !showingScores;
    }

    /// Restarts the program: stored values stay.
    void launch() {
        phase = Session::Phase::fresh;
        showingScores = held = false;
        pace = runPace = scorePace = Pace::classic;
        game = SnakeCore::ReferenceGame(28, 22);
    }

    void start() {
        if (phase == Session::Phase::awaitingName || showingScores) {
            return;
        }
        phase = Session::Phase::running;
        runPace = pace;
        game = SnakeCore::ReferenceGame(28, 22);
    }

    void pause() {
        if (!inRun() || showingScores) {
            return;
        }
        phase = phase == Session::Phase::running ? Session::Phase::paused : Session::Phase::running;
    }

    void pauseIfRunning() {
        if (phase == Session::Phase::running) {
            phase = Session::Phase::paused;
        }
    }

    void openScores() {
        pauseIfRunning();
        showingScores = true;
        scorePace = pace;
    }

    void turn(SnakeCore::Direction direction) {
        if (phase == Session::Phase::running && handlesKeys()) {
            game.turn(direction);
        }
    }

    void space() {
        if (!handlesKeys()) {
            return;
        }
        if (inRun()) {
            pause();
        } else {
            start();
        }
    }

    void escape() {
        if (handlesKeys()) {
            pauseIfRunning();
        }
    }

    void restart() {
        if (handlesKeys()) {
            start();
        }
    }

    void save(bool nameIsBlank) {
        if (phase == Session::Phase::awaitingName && !nameIsBlank) {
            phase = Session::Phase::saved;
            ++savedRuns;
        }
    }

    void skip() {
        if (phase == Session::Phase::awaitingName) {
            phase = Session::Phase::skipped;
        }
    }

    /// `generator` places the next fruit; the caller must then copy its position from the session.
    template <typename Generator>
    void tick(Generator& generator) {
        if (!advances()) {
            return;
        }
        const std::int64_t before = game.score;
        game.step(generator);
        if (game.score > before) {
            play(SoundEffect::pop);
            best() = std::max(best(), game.score);
        }
        if (game.ended) {
            phase = Session::Phase::awaitingName;
            play(SoundEffect::tink);
        }
    }

private:
    void play(SoundEffect effect) {
        if (sound) {
            played.push_back(effect);
        }
    }
};
