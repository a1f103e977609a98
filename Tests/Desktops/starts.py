"""Repeated starts at scale factors: each has to reach full screen."""

SCALES = 1, 1.25, 1.5, 1.75, 2, 3


def start_repeatedly(scale, number):
    """A step that starts the game this often at a scale."""

    def step(trial):
        failures = []
        for _ in range(number):
            trial.end()
            try:
                trial.launch(QT_SCALE_FACTOR=str(scale))
            except AssertionError as error:
                failures.append(str(error))
        # On a failure the game is left for the screenshot.
        assert not failures, f"{len(failures)} of {number} starts failed: {failures[0]}"
        trial.end()

    return step


def scaled_starts(number):
    return {f"× {scale}": start_repeatedly(scale, number) for scale in SCALES if number > 0}
