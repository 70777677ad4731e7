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
    ADXObject* AddDashboard(const char* id, const std::string& title) {
        return AddTitled<ADXDashboard>(definition, id, title);
    }

    ADXDefinition definition;
    HWND combo;
};

TEST_F(PageComboTest, OffersTheTitlesOfOneTypeCutAt256CharactersAndSelectsTheFirst) {
    const std::string longest(256, 'a');
    ADXObject* const first = AddDashboard("B", "Zebra");
    AddTitled<ADXListView>(definition, "L", "A list");
    ADXObject* const second = AddDashboard("A", "Antelope");
    AddDashboard("C", longest);
    AddDashboard("D", longest + "c");
    Add<ADXDashboard>(definition, "E");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ((Strings{"Zebra", "Antelope", longest, longest, ""}), Rows(combo));
    EXPECT_EQ(first, Selected());
    ::SendMessageA(combo, CB_SETCURSEL, 1, 0);
    EXPECT_EQ(second, Selected());
    EXPECT_EQ(reinterpret_cast<LRESULT>(second), ::SendMessageA(combo, CB_GETITEMDATA, 1, 0));
}

TEST_F(PageComboTest, NeverAnswersAnObjectThatIsGoneAndFillingAgainLeavesNothingOfBefore) {
    EXPECT_EQ(nullptr, SelectedObject(nullptr, definition, kTypeDashboard));
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(Strings{}, Rows(combo));
    EXPECT_EQ(nullptr, Selected());
    AddDashboard("A", "Antelope");
    FillPageCombo(combo, definition, kTypeDashboard);
    definition.Clear();
    EXPECT_EQ(nullptr, Selected());
    ADXObject* const badger = AddDashboard("B", "Badger");
    FillPageCombo(combo, definition, kTypeDashboard);
    EXPECT_EQ(Strings{"Badger"}, Rows(combo));
    EXPECT_EQ(badger, Selected());
}

TEST_F(PageComboTest, NeverAnswersAnObjectOfAnotherRow) {
    AddDashboard("A", "Antelope");
    FillPageCombo(combo, definition, kTypeDashboard);
    definition.InsertAt(std::make_unique<ADXDashboard>(), 0);
    EXPECT_EQ(nullptr, Selected());
}

}  // namespace
}  // namespace corvex::test
