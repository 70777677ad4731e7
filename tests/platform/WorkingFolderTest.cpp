#include <gtest/gtest.h>

#include "platform/WorkingFolder.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

namespace fs = std::filesystem;

TEST(KeptWorkingFolder, ComesBack) {
    const TestFolder folder;
    const fs::path before = fs::current_path();
    {
        const KeptWorkingFolder kept;
        fs::current_path(folder.Path());
    }
    EXPECT_EQ(before, fs::current_path());
}

TEST(KeptWorkingFolder, ThatHasGoneIsForgotten) {
    const KeptWorkingFolder ours;
    const TestFolder folder;
    const fs::path inner = folder.Path() / "inner";
    fs::create_directory(inner);
    fs::current_path(inner);
    {
        const KeptWorkingFolder kept;
        fs::current_path(folder.Path());
        fs::remove(inner);
    }
    EXPECT_TRUE(fs::equivalent(folder.Path(), fs::current_path()));
    fs::current_path(fs::temp_directory_path());  // so that the folder can go
}

}  // namespace
}  // namespace corvex::test
