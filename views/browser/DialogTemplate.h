// Builds a dialog template in memory, for dialogs that belong to a library and to no resource of a program.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex {

// The layout that DialogBoxIndirectParamA reads. Sizes in dialog units. Controls come in the order of the Tab key.
class DialogTemplate {
public:
    struct Place {
        short x, y, width, height;
    };

    DialogTemplate(DWORD style, Place place, std::wstring_view title, WORD fontSize, std::wstring_view font);
    void Add(WORD id, DWORD style, Place place, std::wstring_view controlClass, std::wstring_view text);

    // Valid until the template changes or goes.
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(units_.data()); }

private:
    void Word(unsigned value) { units_.push_back(static_cast<std::uint16_t>(value)); }
    void Double(DWORD value);
    void Rectangle(Place place);
    void Text(std::wstring_view text);

    std::vector<std::uint16_t> units_;  // an allocation is aligned for double words
};

}  // namespace corvex
