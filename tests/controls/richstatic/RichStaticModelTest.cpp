#include <gtest/gtest.h>

#include "controls/richstatic/RichStaticModel.h"

namespace corvex {
namespace {

TEST(RichStaticModelTest, HasABlackBorderUntilToldOtherwise) {
    EXPECT_EQ(RichStaticModel().borderColour, 0u);
}

TEST(RichStaticModelTest, TextIsPaintedInItsColour) {
    RichStaticModel model;
    model.label.SetTextColour(0x123456);
    model.label.SetBackColour(0x654321);
    EXPECT_EQ(model.PaintedTextColour(), 0x123456u);
    model.label.SetBackColour(kNoColour);
    EXPECT_EQ(model.PaintedTextColour(), 0x123456u);
}

TEST(RichStaticModelTest, TextWithoutAColourTakesThatOfTheGround) {
    RichStaticModel model;
    model.label.SetTextColour(kNoColour);
    model.label.SetBackColour(0x654321);
    EXPECT_EQ(model.PaintedTextColour(), 0x654321u);
}

TEST(RichStaticModelTest, TextWithoutAColourOnTheSystemsGroundHasNone) {
    RichStaticModel model;
    model.label.SetTextColour(kNoColour);
    EXPECT_EQ(model.PaintedTextColour(), kNoColour);
}

}  // namespace
}  // namespace corvex
