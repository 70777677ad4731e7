#include <gtest/gtest.h>

#include <filesystem>

#include "platform/ProgramPlace.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

TEST(ProgramPlaceTest, SystemKnowsThisProgram) {
    IProgramPlace& place = CurrentProgramPlace();
    const std::filesystem::path file = place.FileName(nullptr);
    EXPECT_TRUE(std::filesystem::is_regular_file(file));
    EXPECT_EQ("platform_test", file.stem().string());
    EXPECT_EQ(static_cast<char>(std::filesystem::path::preferred_separator), place.Separator());
    EXPECT_NE(std::string::npos, place.FileName(nullptr).find(place.Separator()));
    EXPECT_GT(place.Screen().width, 0);
    EXPECT_GT(place.Screen().height, 0);
}

TEST(ProgramPlaceTest, AnotherPlaceIsInForceForItsScope) {
    FixedProgramPlace outer, inner;
    {
        const ScopedProgramPlace first(outer);
        EXPECT_EQ(&outer, &CurrentProgramPlace());
        {
            const ScopedProgramPlace second(inner);
            EXPECT_EQ(&inner, &CurrentProgramPlace());
        }
        EXPECT_EQ(&outer, &CurrentProgramPlace());
    }
    EXPECT_EQ(&SystemProgramPlace(), &CurrentProgramPlace());
}

}  // namespace
}  // namespace corvex::test
