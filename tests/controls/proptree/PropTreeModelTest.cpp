#include <gtest/gtest.h>

#include <tuple>

#include "controls/proptree/PropTreeModel.h"

namespace corvex {
namespace {

TEST(PropTreeModelTest, TheTreeLeavesTheWidestPageItsRoomEvenAllOfIt) {
    PropTreeModel model(150, 100);
    EXPECT_EQ(model.Tree({500, 300}), (PropBox{0, 0, 500, 300}));
    model.AddPage({200, 50});
    model.AddPage({120, 80});
    for (const auto& [client, width, x] :
         {std::tuple{PropSize{500, 300}, 300, 302}, {{120, 40}, 0, 2}, {{0, 0}, 0, 2}}) {
        EXPECT_EQ(model.Tree(client), (PropBox{0, 0, width, client.height}));
        EXPECT_EQ(model.PageX(client), x);
    }
}

TEST(PropTreeModelTest, OkSitsInTheCornerAndCancelToItsLeft) {
    const PropTreeModel model(150, 100);
    EXPECT_EQ(model.Ok({500, 300}), (PropBox{430, 273, 65, 22}));
    EXPECT_EQ(model.Cancel({500, 300}), (PropBox{357, 273, 65, 22}));
}

TEST(PropTreeModelTest, TheLeastSizeIsTreeAndWidestByTallest) {
    PropTreeModel model(150, 100);
    EXPECT_EQ(model.MinimumTrack(), (PropSize{150, 100}));
    model.AddPage({200, 50});
    EXPECT_EQ(model.MinimumTrack(), (PropSize{350, 100}));
    model.AddPage({120, 180});
    EXPECT_EQ(model.MinimumTrack(), (PropSize{350, 180}));
}

TEST(PropTreeModelTest, PagesAndButtonsFitAboveEachOther) {
    PropTreeModel model(150, 100);
    model.AddPage({200, 180});
    const PropSize client = model.FittingClient();
    EXPECT_EQ(client, (PropSize{350, 212}));
    EXPECT_GE(model.Ok(client).y, 180);
    EXPECT_EQ(model.Tree(client).width, 150);
}

TEST(PropTreeModelTest, SizesBelowNothingCountAsNothing) {
    const PropTreeModel model(-5, -7);
    EXPECT_EQ(model.MinimumTrack(), (PropSize{0, 0}));
}

TEST(PropTreeModelTest, AWindowStandsInTheMiddleOfItsOwnerOnTheScreen) {
    const PropBox screen{0, 0, 1024, 768};
    EXPECT_EQ(CentredOver({100, 100, 600, 400}, screen, {300, 200}), (PropBox{250, 200, 300, 200}));
    EXPECT_EQ(CentredOver({-500, -400, 600, 400}, screen, {300, 200}), (PropBox{0, 0, 300, 200}));
    EXPECT_EQ(CentredOver({900, 700, 600, 400}, screen, {300, 200}), (PropBox{724, 568, 300, 200}));
    EXPECT_EQ(CentredOver({0, 0, 100, 100}, screen, {2000, 2000}), (PropBox{0, 0, 2000, 2000}));
}

}  // namespace
}  // namespace corvex
