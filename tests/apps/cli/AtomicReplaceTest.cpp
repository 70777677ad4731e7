#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "apps/cli/AtomicReplace.h"
#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

TEST(AtomicReplaceTest, GoesWithTheObject) {
    const TempFile file("old");
    std::string name;
    {
        const AtomicReplace fresh(file.Path());
        name = fresh.Name();
        std::ofstream(name) << "new";
        EXPECT_TRUE(fs::exists(name));
    }
    EXPECT_FALSE(fs::exists(name));
    EXPECT_EQ(ReadFile(file.Path()), "old");
}

// Nobody has this number: it is larger than any that a system gives.
TEST(AtomicReplaceTest, SweepsWhatAProcessLeftButForALogWithRecords) {
    const TempFile file("", ".xdl");
    const std::string left = file.Path() + ".2147483647.new";
    fs::copy_file(Example("harrier-8192.xdl"), left);
    { const AtomicReplace fresh(file.Path()); }
    EXPECT_TRUE(fs::exists(left));
    std::ofstream(left, std::ios::binary) << std::string(40, '\0');
    { const AtomicReplace fresh(file.Path()); }
    EXPECT_FALSE(fs::exists(left));
}

}  // namespace
}  // namespace corvex
