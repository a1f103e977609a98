"""The cases that are measured: the paces of the game, and delays of a slow disk."""

# Seconds per step.
TICKS = {"Gentle": 0.19, "Classic": 0.13, "Swift": 0.085}

# Milliseconds that each fsync takes longer.
FLUSH_DELAYS = 0, 20, 100, 500
