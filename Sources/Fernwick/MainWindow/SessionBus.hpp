#pragma once

#include <QByteArray>
#include <chrono>

// What the toolkit does with the session bus happens in the thread of the windows, and cannot be
// called off. Two of these functions set the environment of this process, so that it never
// begins. They are to be called before the application object is made.

/// Whether whoever is at the address of a bus does not answer within `patience`. Of several
/// addresses, the first at which there is anybody counts. Only local ones are looked at.
[[nodiscard]] bool isSilentBus(const QByteArray& addresses, std::chrono::milliseconds patience);

/// On a desktop without a session bus the bus library starts one for whoever asks, and leaves it
/// behind. A game is no reason to: this makes it go without.
void leaveMissingSessionBusAlone();

/// A session bus that hangs would keep the window away until it goes on. This makes the game go
/// without a bus that does not answer within `patience`; one in good health answers in less than a
/// millisecond.
void leaveSilentSessionBusAlone(std::chrono::milliseconds patience = std::chrono::seconds(2));
