#include <gtest/gtest.h>

#include "definition/ADXBitmask.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ReferrerSearch.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

class ReferrerSearch : public testing::Test {
protected:
    template <class T>
    T& Add() {
        return *test::Add<T>(definition, "B");
    }

    ADXDefinition definition;
    ADXValue* target = test::Add<ADXValue>(definition, "A");
};

TEST_F(ReferrerSearch, FindsAMacroByItsNode) {
    auto& macro = Add<ADXMacro>();
    ADXMacroNode node;
    macro.AddNode(&node);
    EXPECT_FALSE(RefersTo(macro, *target));
    node.command = target;
    macro.AddNode(&node);
    EXPECT_TRUE(RefersTo(macro, *target));
}

TEST_F(ReferrerSearch, PassesOverHeadingRows) {
    auto& list = Add<ADXListView>();
    list.SetEntryCount(1);
    list.GetEntry(0)->item = target;
    list.GetEntry(0)->entrytype = ADXLVENTRY::kHeadingRow;
    EXPECT_FALSE(RefersTo(list, *target));
    list.GetEntry(0)->entrytype = ADXLVENTRY::kItemRow;
    EXPECT_TRUE(RefersTo(list, *target));
}

TEST_F(ReferrerSearch, FindsAValueByALinkThatIsNotZero) {
    auto* value = test::AddValue(definition, "B", "X+Y");
    EXPECT_FALSE(RefersTo(*value, ADXValue()));
    test::Link(*value, 'Y', target->GetIdHash());
    EXPECT_TRUE(RefersTo(*value, *target));
}

TEST_F(ReferrerSearch, FindsADashboardByItsGauge) {
    auto& dash = Add<ADXDashboard>();
    dash.SetEntryCount(2);
    EXPECT_FALSE(RefersTo(dash, *target));
    dash.GetEntry(1)->item = target;
    EXPECT_TRUE(RefersTo(dash, *target));
}

TEST_F(ReferrerSearch, DoesNotExamineHistogramsAndMonitors) {
    auto& histogram = Add<ADXHistogram>();
    histogram.SetX(target);
    auto& monitor = Add<ADXMonitor>();
    monitor.SetEntryCount(1);
    monitor.GetEntry(0)->item = target;
    EXPECT_FALSE(RefersTo(histogram, *target));
    EXPECT_FALSE(RefersTo(monitor, *target));
}

TEST(ADXDefinitionFindReferrer, WalksOnFromAnIndex) {
    ADXDefinition definition;
    auto* target = test::AddValue(definition, "A", "X");
    auto* first = test::AddValue(definition, "B", "X");
    auto* second = test::AddValue(definition, "C", "X");
    test::Link(*first, 'X', target->GetIdHash());
    test::Link(*second, 'X', target->GetIdHash());
    std::int32_t index = 99;
    EXPECT_EQ(definition.FindReferrer(target, 0, &index), first);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(definition.FindReferrer(target, 2, &index), second);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(definition.FindReferrer(target, 3, &index), nullptr);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(definition.FindReferrer(target, 0), first);
}

TEST(ADXDefinitionFindReferrer, FindsNothingForNull) {
    ADXDefinition definition;
    const ADXMacroNode unresolved;
    test::Add<ADXMacro>(definition, "A")->AddNode(&unresolved);
    std::int32_t index = 99;
    EXPECT_EQ(definition.FindReferrer(nullptr, 0, &index), nullptr);
    EXPECT_EQ(index, -1);
}

}  // namespace
}  // namespace corvex
