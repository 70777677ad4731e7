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
    // A view of two entries, the last of which shows the target.
    template <class T>
    T& AddView() {
        T& view = Add<T>();
        view.SetEntryCount(2);
        EXPECT_FALSE(RefersTo(view, *target));
        view.GetEntry(1)->item = target;
        return view;
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

TEST_F(ReferrerSearch, FindsADashboardAndAListButPassesOverHeadingRows) {
    EXPECT_TRUE(RefersTo(AddView<ADXDashboard>(), *target));
    auto& list = AddView<ADXListView>();
    EXPECT_TRUE(RefersTo(list, *target));
    list.GetEntry(1)->entrytype = ADXLVENTRY::kHeadingRow;
    EXPECT_FALSE(RefersTo(list, *target));
}

TEST_F(ReferrerSearch, FindsAValueByALinkThatIsNotZero) {
    auto* value = test::AddValue(definition, "B", "X+Y");
    EXPECT_FALSE(RefersTo(*value, ADXValue()));
    test::Link(*value, 'Y', target->GetIdHash());
    EXPECT_TRUE(RefersTo(*value, *target));
}

TEST_F(ReferrerSearch, DoesNotExamineHistogramsAndMonitors) {
    auto& histogram = Add<ADXHistogram>();
    histogram.SetX(target);
    EXPECT_FALSE(RefersTo(histogram, *target));
    EXPECT_FALSE(RefersTo(AddView<ADXMonitor>(), *target));
}

TEST(ADXDefinitionFindReferrer, WalksOnFromAnIndexAndFindsNothingForNull) {
    ADXDefinition definition;
    auto* target = test::AddValue(definition, "A", "X");
    auto* first = test::AddValue(definition, "B", "X");
    auto* second = test::AddValue(definition, "C", "X");
    for (ADXValue* value : {first, second})
        test::Link(*value, 'X', target->GetIdHash());
    const ADXMacroNode unresolved;
    test::Add<ADXMacro>(definition, "D")->AddNode(&unresolved);
    const struct {
        const ADXObject *target, *found;
        std::uint32_t from;
        std::int32_t index;
    } cases[] = {{target, first, 0, 1}, {target, second, 2, 2}, {target, nullptr, 3, -1}, {nullptr, nullptr, 0, -1}};
    for (const auto& one : cases) {
        std::int32_t index = 99;
        EXPECT_EQ(definition.FindReferrer(one.target, one.from, &index), one.found);
        EXPECT_EQ(index, one.index);
    }
    EXPECT_EQ(definition.FindReferrer(target, 0), first);
}

}  // namespace
}  // namespace corvex
