#include <gtest/gtest.h>

#include "session/LogName.h"

namespace corvex::test {
namespace {

constexpr LocalTime kBegun{2026, 11, 5, 20, 14, 32, 5, 0};

TEST(LogNameTest, SuggestsTheDefinitionAndTheStart) {
    for (const auto& [path, name] : {std::pair{"C:\\cars\\harrier.adx", "harrier"},
                                     {"harrier.5.0.adx", "harrier.5.0"},
                                     {"/cars/harrier", "harrier"},
                                     {"", "log"},
                                     {"/cars/.adx", "log"},
                                     {"/cars/a?b*c<d>\"e|f\tg.adx", "a-b-c-d--e-f-g"}})
        EXPECT_EQ(SuggestedLogName(path, kBegun), std::string(name) + "-2026-11-20-143205.xdl") << path;
    EXPECT_EQ(SuggestedLogName(std::string(300, 'x'), kBegun), std::string(80, 'x') + "-2026-11-20-143205.xdl");
}

}  // namespace
}  // namespace corvex::test
