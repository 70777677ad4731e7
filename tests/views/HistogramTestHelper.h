// A page with two histograms on it, and what it shows of them.
#pragma once

#include "controls/grid/Grid.h"
#include "controls/window/Clipboard.h"
#include "definition/ADXHistogram.h"
#include "tests/views/PageTestHelper.h"
#include "views/HistogramPage.h"
#include "views/PageResources.h"

namespace corvex::test {

constexpr std::uint32_t kFeedingCommand = 0x1111, kOtherCommand = 0x2222;

// Two histograms of four by three cells, fed by one byte as x, y and z: 0, 50 and so on to 150 across, 0, 75, 150 down.
class HistogramPageTest : public PageTest {
protected:
    HistogramPageTest() {
        ADXValue* const value = AddTitled<ADXValue>(session.definition, "V", std::string(70, 'v'));
        value->SetEquation("X", 1);
        first = AddTitled<ADXHistogram>(session.definition, "A", "Fuel");
        second = AddTitled<ADXHistogram>(session.definition, "B", "Spark");
        for (ADXHistogram* histogram : {first, second}) {
            histogram->SetCols(4);
            histogram->SetXMax(150);
            histogram->SetRows(3);
            histogram->SetYMax(150);
            for (const int taken : {histogram->SetX(value), histogram->SetY(value), histogram->SetZ(value)})
                EXPECT_EQ(1, taken);
        }
        CreateHistogramPage(session);
    }
    HWND Chart() const { return Item(session.histogramPage, IDC_HISTOGRAM_CHART); }
    HWND Grid() const { return Item(session.histogramPage, IDC_HISTOGRAM_GRID); }
    LRESULT Ask(UINT message, WPARAM wParam = 0) const { return ::SendMessageA(Grid(), message, wParam, 0); }
    std::string Cell(int row, int column) const {
        char text[64] = "";
        getCell(Grid(), row, column, text);
        return text;
    }
    Strings Row(int row) const {
        Strings texts;
        for (int column = 0; column <= Ask(GRM_GETCOLS); ++column)
            texts.push_back(Cell(row, column));
        return texts;
    }
    void Sample(std::uint8_t byte, std::uint32_t command = kFeedingCommand) {
        Store({byte}, command);
        Publish({byte}, command);
    }
    void Press(int id) const { ::SendMessageA(Item(session.histogramPage, id), BM_CLICK, 0, 0); }
    std::string Copied(std::uint32_t anchor, std::uint32_t cursor) const {
        ::SendMessageA(Grid(), GRM_SETSELECTION, anchor, static_cast<LPARAM>(cursor));
        ::SendMessageA(Grid(), WM_CHAR, 0x03, 0);
        return TextOfClipboard(frame).value_or("nothing");
    }

    ADXHistogram *first = nullptr, *second = nullptr;
};

}  // namespace corvex::test
