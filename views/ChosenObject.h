// The object of the definition that the user has chosen on a page.
#pragma once

#include "views/DefinitionPage.h"
#include "views/PageCombo.h"

namespace corvex {

// A combo box of the page, the objects that it offers, and the session's pointer to the chosen one, which is null for
// none. Belongs to the page. Main thread.
template <class Object>
class ChosenObject {
public:
    using Current = Object* SessionState::*;

    ChosenObject(const DefinitionPage& page, int comboId, std::uint32_t mask, Current current)
        : page_(page), comboId_(comboId), mask_(mask), current_(current) {}

    Object* Get() const { return page_.Session().*current_; }
    // Offers what the definition holds now, and chooses the first.
    Object* Offer() {
        FillPageCombo(Combo(), page_.Definition(), mask_);
        return Take();
    }
    // What the combo box says now.
    Object* Take() {
        return page_.Session().*current_ = static_cast<Object*>(SelectedObject(Combo(), page_.Definition(), mask_));
    }

private:
    HWND Combo() const { return ::GetDlgItem(page_.Window(), comboId_); }

    const DefinitionPage& page_;
    const int comboId_;
    const std::uint32_t mask_;
    const Current current_;
};

}  // namespace corvex
