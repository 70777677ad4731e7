// The combo box in which a page offers the objects of one type for choice.
#pragma once

#include <cstdint>

#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Characters of a title that a row shows.
inline constexpr std::uint32_t kComboTitleLength = 256;

// Empties the box, adds a row for every object with a bit of `mask` in definition order, with the object as the row's
// item data, and selects the first row. On the box's thread, like all below.
void FillPageCombo(HWND combo, const ADXDefinition& definition, std::uint32_t mask);

// The object of the selected row. Null when no row is selected, and when the definition has changed since the box was
// filled with the same mask: a row's item data is compared with the definition and never followed.
ADXObject* SelectedObject(HWND combo, const ADXDefinition& definition, std::uint32_t mask);

}  // namespace corvex
