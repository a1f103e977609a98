#include "Fernwick/Window/WindowTest.hpp"
#include "Support/ClosedWalk.hpp"

namespace {

class WonRun : public WindowTest {};

}  // namespace

TEST_F(WonRun, playedToTheLastCellIsFullyGrownAndCanBeSaved) {
    constexpr int ticksBetweenFrames = 10'000;
    startRun();
    for (int ticks = 1; session.running; ++ticks) {
        sounds.heard.clear();
        if (const auto next = turnAlongCycle(session.game)) {
            session.key(*next);
        }
        fireTimer();
        if (ticks % ticksBetweenFrames == 0) {
            settle();
        }
    }
    settle();

    EXPECT_EQ(sounds.heard, (std::vector{SoundEffect::pop, SoundEffect::tink}));
    EXPECT_TRUE(shows("Fully grown."));
    EXPECT_FALSE(shows("Game over."));
    EXPECT_TRUE(shows("6120 POINTS  ·  Classic"));
    EXPECT_TRUE(shows("ANOTHER CHANCE TO GROW"));

    session.playerName = QStringLiteral("Ada");
    session.saveScore();
    settle();

    EXPECT_TRUE(shows("01 Ada 6120"));
    EXPECT_EQ(onDisk().integer(QStringLiteral("best-Classic")), 6120);
}
