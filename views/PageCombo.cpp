#include "views/PageCombo.h"

namespace corvex {

namespace {

// The row at which the object belongs, or CB_ERR when the definition does not hold it.
LRESULT RowOf(const ADXDefinition& definition, std::uint32_t mask, LRESULT object) {
    LRESULT row = 0;
    for (const auto& candidate : definition.Objects()) {
        if ((candidate->GetType() & mask) == 0) continue;
        if (reinterpret_cast<LRESULT>(candidate.get()) == object) return row;
        ++row;
    }
    return CB_ERR;
}

}  // namespace

void FillPageCombo(HWND combo, const ADXDefinition& definition, std::uint32_t mask) {
    ::SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (const auto& object : definition.Objects()) {
        if ((object->GetType() & mask) == 0) continue;
        char title[kComboTitleLength + 1];
        object->GetTitle(title, sizeof title);
        const LRESULT row = ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(title));
        if (row < 0) break;  // no memory for more rows
        ::SendMessageA(combo, CB_SETITEMDATA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(object.get()));
    }
    ::SendMessageA(combo, CB_SETCURSEL, 0, 0);
}

ADXObject* SelectedObject(HWND combo, const ADXDefinition& definition, std::uint32_t mask) {
    const LRESULT row = ::SendMessageA(combo, CB_GETCURSEL, 0, 0);
    if (combo == nullptr || row == CB_ERR) return nullptr;
    const LRESULT object = ::SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(row), 0);
    return RowOf(definition, mask, object) == row ? reinterpret_cast<ADXObject*>(object) : nullptr;
}

}  // namespace corvex
