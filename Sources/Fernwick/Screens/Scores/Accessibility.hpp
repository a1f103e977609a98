#pragma once

/// Gives the sheet, the list of scores and its rows their accessible roles. Each of them calls this
/// when it is made; only the first call has an effect.
void installScoreAccessibility();
