"""Long play by a random player leaves the game as sound as it was.

A minute of it by default; FERNWICK_SOAK_SECONDS asks for more, FERNWICK_SOAK_SEED for another row
of actions.
"""

import os
import random

from random_player import RandomPlayer

SECONDS = float(os.environ.get("FERNWICK_SOAK_SECONDS", "60"))
SEED = int(os.environ.get("FERNWICK_SOAK_SEED", "2026"))
WARM_UP_SECONDS = min(60.0, SECONDS / 2)
MAY_GROW_MEGABYTES = 1


def test_a_random_player_leaves_the_game_sound(game, home, other_window):
    player = RandomPlayer(game, other_window, random.Random(SEED))
    print(f"seed {SEED}")
    player.see_everything()
    player.play(WARM_UP_SECONDS)
    before = player.memory()
    player.play(SECONDS - WARM_UP_SECONDS)
    after = player.memory()
    player.look()
    figures = (f"{SECONDS:.0f} s, {player.actions} actions, {player.looks} looks, "
               f"{len(home.high_scores())} saved runs, memory {before:.1f} MB after "
               f"{WARM_UP_SECONDS:.0f} s and {after:.1f} MB at the end, seed {SEED}")
    print(figures)
    assert after - before <= MAY_GROW_MEGABYTES, figures
    assert game.printed() == "", figures
    game.press("ctrl+q")
    assert game.exit_status() == 0
