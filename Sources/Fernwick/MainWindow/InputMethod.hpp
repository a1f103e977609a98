#pragma once

#include <chrono>

/// An input method that hangs, with which names are typed in scripts that have more signs than a
/// keyboard has keys, would keep the window away until it goes on. This makes the game go without
/// one that does not answer within `patience`. To be called before the application object is made:
/// it sets the environment of this process.
void leaveSilentInputMethodAlone(std::chrono::milliseconds patience = std::chrono::seconds(2));
