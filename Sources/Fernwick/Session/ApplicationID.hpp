#pragma once

#include <QStringView>

/// The one name by which the desktop knows the game: its windows, its place on the session bus, its
/// sounds, and the files that are installed with it.
inline constexpr QStringView applicationID = u"org.fernwick.fernwick";
