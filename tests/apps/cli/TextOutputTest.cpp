#include <gtest/gtest.h>

#include <sstream>

#include "apps/cli/TextOutput.h"
#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

TEST(TextOutputTest, WritesToTheStreamGivenForADash) {
    std::ostringstream out;
    TextOutput output("-", out);
    ASSERT_TRUE(output.IsOpen());
    EXPECT_TRUE(output.Write("a\nb", 3));
    EXPECT_TRUE(output.Finish());
    EXPECT_EQ(out.str(), "a\nb");
}

TEST(TextOutputTest, ReplacesAFileOnlyWhenFinished) {
    const TempFile file("precious");
    std::ostringstream out;
    {
        TextOutput output(file.Path(), out);
        ASSERT_TRUE(output.IsOpen());
        EXPECT_TRUE(output.Write("half", 4));
        EXPECT_EQ(ReadFile(file.Path()), "precious");
    }
    EXPECT_EQ(ReadFile(file.Path()), "precious");
    TextOutput output(file.Path(), out);
    EXPECT_TRUE(output.Write("a\nb", 3));
    EXPECT_TRUE(output.Finish());
    EXPECT_EQ(ReadFile(file.Path()), "a\nb");
    EXPECT_EQ(out.str(), "");
}

TEST(TextOutputTest, TellsThatAStreamFailed) {
    std::ostringstream out;
    out.setstate(std::ios::badbit);
    TextOutput output("-", out);
    EXPECT_FALSE(output.Write("a", 1));
    EXPECT_FALSE(output.Finish());
}

}  // namespace
}  // namespace corvex
