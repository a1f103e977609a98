"""The speeds of the game."""

# Seconds between two steps.
TICKS = {"Gentle": 0.19, "Classic": 0.13, "Swift": 0.085}
