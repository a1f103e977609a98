#pragma once

/// The toolkit would tell the player which fonts lack which scripts, that a folder of the session
/// is missing, or which display it tried first. This keeps all to itself but why it cannot go on at
/// all. Whoever asks for its messages, by variables such as QT_LOGGING_RULES, gets them. To be
/// called before the application object is made: it may set the environment of this process.
void keepToolkitQuiet();
