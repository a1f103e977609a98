#pragma once

#include <ostream>

#include "Session/Session.hpp"

/// The states that the session's flags stand for.
enum class SessionState { fresh, running, paused, awaitingName, saved, skipped, impossible };

inline std::ostream& operator<<(std::ostream& out, SessionState state) {
    static constexpr const char* names[] = {"fresh", "running", "paused",    "awaiting name",
                                            "saved", "skipped", "impossible"};
    return out << names[static_cast<int>(state)];
}

/// What the flags say; `impossible` for a combination that must not come up.
inline SessionState stateOf(const Session& session) {
    struct Row {
        bool started, running, ended, awaitingName, savedRun;
        SessionState state;
    };
    static constexpr Row rows[] = {
        {false, false, false, false, false, SessionState::fresh},
        {true, true, false, false, false, SessionState::running},
        {true, false, false, false, false, SessionState::paused},
        {true, false, true, true, false, SessionState::awaitingName},
        {true, false, true, false, true, SessionState::saved},
        {true, false, true, false, false, SessionState::skipped},
    };
    for (const Row& row : rows) {
        if (row.started == session.started && row.running == session.running &&
            row.ended == session.game->ended() && row.awaitingName == session.awaitingName &&
            row.savedRun == session.savedRun) {
            return row.state;
        }
    }
    return SessionState::impossible;
}
