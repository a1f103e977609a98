#pragma once

/// Tells assistive tools which of the score screens is a dialog and which a list. Each screen calls
/// it when it is made; only the first call does anything.
void installScoreAccessibility();
