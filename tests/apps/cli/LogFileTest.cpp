#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "apps/cli/LogFile.h"
#include "tests/apps/cli/LogTestHelper.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

std::string FailureOf(const std::string& path) {
    DataLogEngine log;
    std::ostringstream err;
    EXPECT_FALSE(OpenLog(log, path, err));
    EXPECT_EQ(log.State(), kLogClosed);
    return err.str();
}

TEST(LogFileTest, SaysWhyInWords) {
    test::LogBytes old;
    old.Header(44, 0, 2).ItemCount(0);
    const LogTempFile version(old);
    EXPECT_EQ(FailureOf(version.Path()), "corvex-cli: " + version.Path() + ": it is no log of version 3\n");
    const TempFile empty("", ".xdl");
    EXPECT_NE(FailureOf(empty.Path()).find(": it ends before its header"), std::string::npos);
    EXPECT_NE(FailureOf("no/such/log.xdl").find("no/such/log.xdl: it cannot be opened: "), std::string::npos);
    EXPECT_NE(FailureOf("").find("it cannot be opened"), std::string::npos);
}

TEST(LogFileTest, KnowsAFileByAnotherName) {
    const TempFile file("x"), other("x");
    const fs::path path(file.Path());
    fs::create_hard_link(path, path.string() + ".link");
    EXPECT_TRUE(SameFile(file.Path(), (path.parent_path() / "." / path.filename()).string()));
    EXPECT_TRUE(SameFile(file.Path(), file.Path() + ".link"));
    EXPECT_FALSE(SameFile(file.Path(), other.Path()));
    EXPECT_FALSE(SameFile(file.Path(), file.Path() + ".absent"));
    EXPECT_FALSE(SameFile("absent", "absent"));
}

}  // namespace
}  // namespace corvex
