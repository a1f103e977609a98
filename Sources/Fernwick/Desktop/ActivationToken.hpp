#pragma once

#include <QByteArray>

namespace Desktop {

/// Makes room for XDG_ACTIVATION_TOKEN at the end of the environment, keeping its value. Call it
/// before the first thread starts, after every other change of the environment.
void reserveActivationToken();

/// Sets XDG_ACTIVATION_TOKEN, from which Qt 6.4 takes the token for the next activation of a window
/// under Wayland; Qt removes the variable afterwards. Ignores an empty token and one of more than
/// 1023 bytes.
///
/// Other threads may call getenv() at the same time: after `reserveActivationToken` this neither
/// moves nor reallocates the environment. The remaining limit is that a thread which reads this
/// very variable could see half of a new token.
void setActivationToken(const QByteArray& token);

}  // namespace Desktop
