#pragma once

#include <chrono>

/// A session manager that hangs would keep the window away until it goes on; one that is gone, or
/// belongs to another machine, costs a second or a line on the error output. This makes the game
/// go without one that does not answer at a local address within `patience`. To be called before
/// the application object is made: it sets the environment of this process.
void leaveSilentSessionManagerAlone(std::chrono::milliseconds patience = std::chrono::seconds(2));

/// A session manager that crashes would take the game along: the library that speaks to it exits.
/// This makes the game go on. To be called once the application object is made.
void outliveSessionManager();
