#pragma once

/// On a desktop without a session bus the bus library starts one for whoever asks, and leaves it
/// behind. A game is no reason to: this makes it go without. To be called before anything asks.
void leaveMissingSessionBusAlone();
