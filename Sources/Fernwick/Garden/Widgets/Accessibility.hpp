#pragma once

namespace Garden {

/// Tells assistive tools what the garden's widgets are. Each widget calls it when it is made; only
/// the first call does anything.
void installAccessibility();

}  // namespace Garden
