#include <gtest/gtest.h>

#include <string>

#include "definition/WriterForms.h"

namespace corvex {
namespace {

TEST(WriterForms, EscapesUpToALimit) {
    EXPECT_EQ(EscapedText("a<b"), "a&lt;b");
    EXPECT_EQ(EscapedText("\"\"\"", 2), "&quot;&quot;");
    EXPECT_EQ(EscapedText(nullptr), "");
    EXPECT_EQ(EscapedText(""), "");
    EXPECT_EQ(EscapedText("abc", 0), "");
    EXPECT_EQ(EscapedText(std::string(1000, '"').c_str()).size(), 6000u);
}

}  // namespace
}  // namespace corvex
