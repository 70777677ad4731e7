#include <gtest/gtest.h>

#include "controls/richstatic/RichStaticModel.h"

namespace corvex {
namespace {

TEST(RichStaticModelTest, HasABlackBorderUntilToldOtherwise) {
    EXPECT_EQ(RichStaticModel().borderColour, 0u);
}

TEST(RichStaticModelTest, TextWithoutAColourTakesThatOfTheGround) {
    for (const auto& [text, ground, painted] : {std::tuple{0x123456u, 0x654321u, 0x123456u},
                                                {0x123456u, kNoColour, 0x123456u},
                                                {kNoColour, 0x654321u, 0x654321u},
                                                {kNoColour, kNoColour, kNoColour}}) {
        RichStaticModel model;
        model.label.SetTextColour(text);
        model.label.SetBackColour(ground);
        EXPECT_EQ(model.PaintedTextColour(), painted) << text << " on " << ground;
    }
}

}  // namespace
}  // namespace corvex
