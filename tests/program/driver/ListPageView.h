// The "Item Lists" page of a running program.
#pragma once

#include <string>
#include <vector>

#include "tools/driver/CorvexWindow.h"

namespace corvex::test {

// Everything is asked of the windows anew each time.
class ListPageView {
public:
    explicit ListPageView(const CorvexWindow& window) : window_(window.Handle()) {}

    HWND List() const;
    HWND Combo() const;
    int RowCount() const;
    // Value and title of each row, with '|' between them.
    std::vector<std::string> Rows() const;
    // Where the list shows a row's value.
    RECT ValuePlace(int row) const;

private:
    HWND window_;
};

}  // namespace corvex::test
