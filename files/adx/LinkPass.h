// Turns the hashes and ids of a definition that has been read into pointers.
#pragma once

#include "definition/ADXDefinition.h"
#include "files/adx/HeaderReader.h"

namespace corvex {

// Visits the objects in list order, so links may point forward in the file. Rows of item lists other than item rows
// are passed over; a value takes only a lookup table; a monitor series that leads nowhere is removed; all else that
// leads nowhere stays null. Links of equation variables stay hashes. An empty id is not looked
// up, not even where an object was given one: what names nothing means no object. The hash of the empty text is a hash
// like any other. The list does not change, so the lookups go through an index of it and the pass takes n log n steps;
// but for the empty id, what they find is what FindByHash and FindById would.
void ResolveLinks(ADXDefinition& definition, const HeaderWords& header);

}  // namespace corvex
