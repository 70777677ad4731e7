#include <gtest/gtest.h>

#include <sstream>

#include "apps/cli/PatientOutput.h"

namespace corvex {
namespace {

// `refusals`: how often there is no room before each piece; `patience`: milliseconds.
std::string Written(const std::string& text, int refusals, int patience, bool* good) {
    std::ostringstream target;
    int left = refusals;
    PatientOutput output(target, {[&](int) { return left-- <= 0 ? (left = refusals, true) : false; },
                                  [&](int waited) { return waited < patience; }});
    std::ostream stream(&output);
    stream << text << 'x' << std::flush;
    *good = stream.good();
    stream << "more" << std::flush;
    return target.str();
}

TEST(PatientOutputTest, GivesUpWhenPatienceEndsAndPassesAllOnBefore) {
    bool good = false;
    for (const std::string& text : {std::string(), std::string("text"), std::string(200000, 'a')}) {
        EXPECT_EQ(Written(text, 0, 0, &good), text + "xmore");
        EXPECT_EQ(Written(text, 3, 1000, &good), text + "xmore");
        EXPECT_TRUE(good);
        EXPECT_EQ(Written(text, 30, 1000, &good), "");
        EXPECT_FALSE(good);
    }
}

}  // namespace
}  // namespace corvex
