// What it costs to paint a gauge.
#pragma once

namespace corvex::bench {

// For each kind of gauge at 300 by 300: a value set with redraw on a window on show, and the paint function on a
// bitmap, each beside the same calls made bare; and the curves of the dial alone. Every round has the next value.
void PrintGaugePaintCost();

}  // namespace corvex::bench
