#pragma once

/// A session manager that crashes would take the game along: the library that speaks to it exits.
/// This makes the game go on. To be called once the application object is made.
void outliveSessionManager();
