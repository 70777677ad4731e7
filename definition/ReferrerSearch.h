// Tells which objects of a definition hold on to another one.
#pragma once

namespace corvex {

class ADXObject;

// True when the object names the target: a macro by a node, a list view by an item row, a value by a linked variable, a
// dashboard by a gauge. Histograms, monitors, bitmasks and tables are not examined.
bool RefersTo(const ADXObject& object, const ADXObject& target);

}  // namespace corvex
