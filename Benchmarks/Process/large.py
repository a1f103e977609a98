"""Start and play on a screen of 3840 x 2160 pixels."""

import gameplay
import startup
from testbed import Testbed


def measure(testbed):
    large = Testbed(testbed.build, 3840, 2160)
    try:
        measured = startup.measure(large) | {"cpu_Swift": gameplay.cpu_share(large, "Swift")}
    finally:
        large.close()
    return {f"{name}_4K": value for name, value in measured.items()}
