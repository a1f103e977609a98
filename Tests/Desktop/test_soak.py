"""A soak test: random play must not leak memory, print anything or lead to an inconsistent state.

Runs for FERNWICK_SOAK_SECONDS, one minute by default, with the seed FERNWICK_SOAK_SEED.
"""

import os
import random

from random_player import RandomPlayer

SECONDS = float(os.environ.get("FERNWICK_SOAK_SECONDS", "60"))
SEED = int(os.environ.get("FERNWICK_SOAK_SEED", "2026"))
WARM_UP_SECONDS = min(60.0, SECONDS / 2)
MAXIMUM_GROWTH_MEGABYTES = 1
MEASUREMENTS = 4
SECONDS_BETWEEN_MEASUREMENTS = 3
# glibc adapts these thresholds while a program runs, which moves its resident memory up and down by
# more than a megabyte. Setting them keeps them fixed.
FIXED_MALLOC_THRESHOLDS = {"MALLOC_MMAP_THRESHOLD_": "65536", "MALLOC_TRIM_THRESHOLD_": "65536"}


def lowest_memory(player):
    """A single measurement varies by more than a megabyte with what was shown before it. A leak
    raises the lowest of several as well."""
    measured = []
    for _ in range(MEASUREMENTS):
        player.play(SECONDS_BETWEEN_MEASUREMENTS)
        measured.append(player.memory())
    return min(measured)


def test_random_play_leaks_no_memory_and_prints_nothing(launch, home, other_window):
    game = launch(**FIXED_MALLOC_THRESHOLDS)
    player = RandomPlayer(game, other_window, random.Random(SEED))
    print(f"seed {SEED}")
    player.visit_every_screen()
    player.play(WARM_UP_SECONDS)
    # The first measurement shows some screens at sizes that they have not had yet.
    player.memory()
    before = lowest_memory(player)
    player.play(SECONDS - WARM_UP_SECONDS)
    after = lowest_memory(player)
    player.check()
    figures = (f"{SECONDS:.0f} s, {player.actions} actions, {player.checks} checks, "
               f"{len(home.high_scores())} saved runs, memory {before:.1f} MB after "
               f"{WARM_UP_SECONDS:.0f} s and {after:.1f} MB at the end, seed {SEED}")
    print(figures)
    assert after - before <= MAXIMUM_GROWTH_MEGABYTES, figures
    assert game.printed() == "", figures
    game.press("ctrl+q")
    assert game.exit_status() == 0
