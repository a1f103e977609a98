#pragma once

/// The toolkit complains aloud of a session manager that the environment names and that is no
/// more, as after a new login in an old terminal. This makes it go without. To be called before
/// the application object is made.
void leaveMissingSessionManagerAlone();

/// A session manager that crashes would take the game along: the library that speaks to it exits.
/// This makes the game go on. To be called once the application object is made.
void outliveSessionManager();
