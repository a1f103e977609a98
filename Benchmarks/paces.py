"""The paces of the game."""

# Seconds per step.
TICKS = {"Gentle": 0.19, "Classic": 0.13, "Swift": 0.085}
