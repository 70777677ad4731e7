// A dialog to pick objects of a definition by their titles.
#pragma once

#include <cstdint>
#include <memory>

#include "definition/ADXDefinition.h"
#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kItemBrowserTitle[] = "ADX Item Browser";
inline constexpr std::uint32_t kBrowseSingle = 1;  // one object at most

// Modal over `parent`, which may be null, on the thread of the parent's window. Lists the objects that GetObject gives
// for the mask, in their order.
//
// True for OK, or a double click on a row: `items` and `count` then tell the selected objects, which stay the
// definition's, in the order of the list; with nothing selected the array is there and the count is 0. False for
// Cancel, or when there can be no dialog: `items` and `count` stay as they were.
bool BrowseItems(HWND parent, const ADXDefinition& definition, std::uint32_t mask, std::uint32_t options,
                 std::unique_ptr<ADXObject*[]>& items, std::uint32_t& count);

}  // namespace corvex
