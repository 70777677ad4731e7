// An item list page with a small definition, for the tests of its rows and colours.
#pragma once

#include "controls/window/CommonControls.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXListView.h"
#include "definition/ADXValue.h"
#include "tests/views/PageTestHelper.h"
#include "views/ItemAlarmModel.h"
#include "views/ItemListPage.h"
#include "views/PageResources.h"

namespace corvex::test {

// A cell's text, as a list control tells it to anybody.
inline std::string CellOf(HWND list, int row, int column) {
    std::string text(20000, '\0');
    LVITEMA rowInfo{};
    rowInfo.iSubItem = column;
    rowInfo.pszText = text.data();
    rowInfo.cchTextMax = static_cast<int>(text.size());
    const auto length = ::SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), L(&rowInfo));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

class ListTest : public PageTest {
protected:
    static constexpr std::uint32_t kCommand = 0x1111, kOther = 0x2222;
    static constexpr std::uint32_t kOwn = 0x123456, kHeadingColour = 0x804020;

    ListTest() { FillDefinition(); }

    // Byte 0 is the speed, bit 0 of byte 1 the fan.
    void FillDefinition() {
        speed = AddTitled<ADXValue>(session.definition, "SPEED", "Speed");
        speed->SetEquation("X", 1);
        speed->digcount = 1;
        speed->alarmlow = 20.0F;
        speed->alarmhigh = 100.0F;
        fan = AddTitled<ADXBitmask>(session.definition, "FAN", "Fan");
        fan->packetoffset = 1;
        fan->operand = fan->result = 1;
        fan->SetTrueString("runs", 4);
        fan->SetFalseString("rests", 5);
        fan->alarmonsetcolor = 0x0000C0;
        fan->alarmonnotsetcolor = 0x00C000;
        list = AddTitled<ADXListView>(session.definition, "LIST", "All");
    }
    ADXLVENTRY* AddRow(ADXObject* item, ADXListView* to = nullptr) {
        ADXLVENTRY entry;
        entry.color = kOwn;
        entry.SetItem(item);
        return AddEntry(entry, to);
    }
    // The page on show with these items.
    void ShowRows(const std::vector<ADXObject*>& items) {
        for (ADXObject* const item : items)
            AddRow(item);
        Show();
    }
    ADXLVENTRY* AddHeading(const std::string& title, std::uint32_t flags) {
        ADXLVENTRY entry;
        entry.entrytype = ADXLVENTRY::kHeadingRow;
        entry.flags = flags;
        entry.color = kHeadingColour;
        entry.title.Set(title.c_str(), static_cast<std::uint32_t>(title.size()));
        return AddEntry(entry);
    }
    ADXLVENTRY* AddEntry(const ADXLVENTRY& entry, ADXListView* to = nullptr) {
        ADXListView* const owner = to == nullptr ? list : to;
        owner->AddEntry(&entry);
        return owner->GetEntry(owner->GetEntryCount() - 1);
    }
    // The page on show with all that is in the definition.
    void Show() {
        CreateItemListPage(session);
        RefreshItemListPage(session);
        TabSheet::selectPage(sheet, 1);
        ShowFrame();
        ::UpdateWindow(frame);
    }
    void Arrive(const std::vector<std::uint8_t>& bytes, std::uint32_t command = kCommand) { Store(bytes, command); }
    void RedrawList() const { ::RedrawWindow(List(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    HWND List() const { return Item(session.listPage, IDC_LIST_VIEW); }
    int RowCount() const { return static_cast<int>(::SendMessageA(List(), LVM_GETITEMCOUNT, 0, 0)); }
    std::string Cell(int row, int column) const { return CellOf(List(), row, column); }
    // Value and title of each row: "50.0 | Speed".
    Strings Table() const {
        Strings table;
        for (int row = 0; row < RowCount(); ++row)
            table.push_back(Cell(row, kValueColumn) + " | " + Cell(row, kTitleColumn));
        return table;
    }
    RECT CellPlace(int row, int column) const {
        RECT place{LVIR_BOUNDS, column, 0, 0};
        ::SendMessageA(List(), LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), L(&place));
        return place;
    }

    ADXValue* speed = nullptr;
    ADXBitmask* fan = nullptr;
    ADXListView* list = nullptr;
};

}  // namespace corvex::test
