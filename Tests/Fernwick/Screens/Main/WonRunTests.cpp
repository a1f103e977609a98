#include "Fernwick/Window/WindowTest.hpp"
#include "Support/ClosedWalk.hpp"

namespace {

/// A game whose next step fills the board.
SnakeCore::Game almostWonGame() {
    SnakeCore::Game game(Session::columns, Session::rows);
    for (SnakeCore::Game next = game; !next.ended();) {
        game = next;
        next.turn(alongCycle(next));
        next.step();
    }
    return game;
}

class WonRun : public WindowTest {};

}  // namespace

TEST_F(WonRun, showsTheWinAndCanBeSaved) {
    startRunAt(almostWonGame());
    sounds.played.clear();
    session.key(static_cast<GameKey>(alongCycle(session.game())));
    fireTimer();
    processEvents();

    EXPECT_EQ(sounds.played, (std::vector{SoundEffect::pop, SoundEffect::tink}));
    EXPECT_TRUE(shows("Fully grown."));
    EXPECT_FALSE(shows("Game over."));
    EXPECT_TRUE(shows("6120 POINTS  ·  Classic"));
    EXPECT_TRUE(shows("ANOTHER CHANCE TO GROW"));

    saveScoreAs("Ada");
    processEvents();

    EXPECT_TRUE(shows("01 Ada 6120"));
    EXPECT_EQ(storedPreferences().integer(QStringLiteral("best-Classic")), 6120);
}
