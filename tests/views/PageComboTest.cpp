#include <gtest/gtest.h>

#include <string>

#include "definition/ADXDashboard.h"
#include "definition/ADXListView.h"
#include "tests/views/PageTestHelper.h"
#include "views/PageCombo.h"

namespace corvex::test {
namespace {

class PageComboTest : public ::testing::Test {
protected:
    PageComboTest()
        : combo(::CreateWindowExA(0, "COMBOBOX", "", WS_POPUP | CBS_DROPDOWNLIST | CBS_HASSTRINGS, 0, 0, 100, 100,
                                  nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr)) {}
    ~PageComboTest() override { ::DestroyWindow(combo); }

    ADXObject* Selected() const { return SelectedObject(combo, definition, kTypeDashboard); }
    void Select(int row) const { ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0); }

    ADXDefinition definition;
    HWND combo;
};

TEST_F(PageComboTest, OffersTheTitlesOfOneTypeInTheOrderOfTheDefinition) {
    AddTitled<ADXDashboard>(definition, "B", "Zebra");
    AddTitled<ADXListView>(definition, "L", "A list");
    AddTitled<ADXDashboard>(definition, "A", "Antelope");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ((Strings{"Zebra", "Antelope"}), Rows(combo));
}

TEST_F(PageComboTest, FillingAgainLeavesNothingOfBefore) {
    AddTitled<ADXDashboard>(definition, "A", "Antelope");
    FillPageCombo(combo, definition, kTypeDashboard);
    definition.Clear();
    AddTitled<ADXDashboard>(definition, "B", "Badger");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(Strings{"Badger"}, Rows(combo));
}

TEST_F(PageComboTest, SelectsTheFirstRowWhoseDataIsTheObject) {
    ADXObject* const first = AddTitled<ADXDashboard>(definition, "A", "Antelope");
    ADXObject* const second = AddTitled<ADXDashboard>(definition, "B", "Badger");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(first, Selected());
    Select(1);
    EXPECT_EQ(second, Selected());
    EXPECT_EQ(reinterpret_cast<LRESULT>(second), ::SendMessageA(combo, CB_GETITEMDATA, 1, 0));
}

TEST_F(PageComboTest, CutsATitleAt256Characters) {
    AddTitled<ADXDashboard>(definition, "A", std::string(256, 'a'));
    AddTitled<ADXDashboard>(definition, "B", std::string(256, 'b') + "c");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(std::string(256, 'a'), RowText(combo, 0));
    EXPECT_EQ(std::string(256, 'b'), RowText(combo, 1));
}

TEST_F(PageComboTest, AnObjectWithoutATitleHasARowToo) {
    ADXObject* const object = Add<ADXDashboard>(definition, "A");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(Strings{""}, Rows(combo));
    EXPECT_EQ(object, Selected());
}

TEST_F(PageComboTest, SelectsNothingWhereThereIsNothing) {
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(0, ::SendMessageA(combo, CB_GETCOUNT, 0, 0));
    EXPECT_EQ(nullptr, Selected());
    EXPECT_EQ(nullptr, SelectedObject(nullptr, definition, kTypeDashboard));
}

TEST_F(PageComboTest, NeverAnswersAnObjectThatIsGone) {
    AddTitled<ADXDashboard>(definition, "A", "Antelope");
    FillPageCombo(combo, definition, kTypeDashboard);
    definition.Clear();
    EXPECT_EQ(nullptr, Selected());
}

TEST_F(PageComboTest, NeverAnswersAnObjectOfAnotherRow) {
    AddTitled<ADXDashboard>(definition, "A", "Antelope");
    FillPageCombo(combo, definition, kTypeDashboard);
    auto newcomer = std::make_unique<ADXDashboard>();
    definition.InsertAt(std::move(newcomer), 0);
    EXPECT_EQ(nullptr, Selected());
}

}  // namespace
}  // namespace corvex::test
