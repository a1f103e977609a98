#pragma once

#include <QByteArray>

namespace Desktop {

/// Reserves space for XDG_ACTIVATION_TOKEN at the end of the environment, keeping its value. Call
/// it before the first thread starts, after every other change of the environment.
void reserveActivationToken();

/// Sets XDG_ACTIVATION_TOKEN, from which Qt 6.4 takes the token for the next activation of a window
/// under Wayland; Qt removes the variable afterwards. Ignores an empty token and one of more than
/// 1023 bytes.
///
/// Other threads may call getenv() at the same time: after `reserveActivationToken` this neither
/// moves nor reallocates the environment. One race remains: a thread that reads this variable
/// meanwhile may see a partially written token.
void setActivationToken(const QByteArray& token);

}  // namespace Desktop
