// The "Dash" page of a running program.
#pragma once

#include <string>
#include <vector>

#include "tools/driver/CorvexWindow.h"

namespace corvex::test {

// The titles in a combo box, in its order.
std::vector<std::string> ComboRows(HWND combo);

// Everything is asked of the windows anew each time.
class DashView {
public:
    explicit DashView(const CorvexWindow& window) : window_(window.Handle()) {}

    HWND Combo() const;
    HWND Page() const;
    std::vector<std::string> Dashboards() const { return ComboRows(Combo()); }
    // The row that is selected; -1 for none.
    int Chosen() const;
    // As the arrow keys do in the combo box, once it has the focus.
    void ChooseNext() const;

    // Of the entry with this index. Null when there is none.
    HWND Gauge(int index) const;
    // Windows of gauges, whatever their entries.
    int GaugeCount() const;
    // Of a dial or a lamp: a readout gives none.
    std::string Title(int index) const;
    // Where a dial's needle points, a whole number.
    int Needle(int index) const;

private:
    HWND window_;
};

}  // namespace corvex::test
