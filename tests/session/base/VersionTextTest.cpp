#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "platform/VersionBlock.h"
#include "session/base/VersionText.h"

namespace corvex {

TEST(VersionTextTest, AFileWithoutABlockLeavesTheBufferAlone) {
    char buffer[32] = "untouched";
    EXPECT_EQ(GetVersionText("no-such-file.exe", buffer, sizeof buffer), 0);
    EXPECT_EQ(GetVersionText(CORVEX_SOURCE_DIR "/README.md", buffer, sizeof buffer), 0);
    EXPECT_EQ(GetVersionText("", buffer, sizeof buffer), 0);
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_EQ(GetVersionText("no-such-file.exe", nullptr, 0), 0);
}

// Where there is a Windows program to ask.
TEST(VersionTextTest, ShowsTheBlockOfAProgramInFourPlaces) {
    const char* library = "C:\\windows\\system32\\kernel32.dll";
    const bool there = std::filesystem::exists(library);
    char buffer[64] = "";
    EXPECT_EQ(GetVersionText(library, buffer, sizeof buffer), there ? 1 : 0);
    VersionBlock block;
    EXPECT_EQ(ReadVersionBlock(library, block), there);
    const std::string text = buffer;
    EXPECT_EQ(std::regex_match(text, std::regex("[0-9]+\\.[0-9]{2,}\\.[0-9]{4,}\\.[0-9]{2,}")), there) << text;
    if (there) {
        EXPECT_EQ(text.substr(0, text.find('.')), std::to_string(block.fileVersionMS >> 16));
        // The date word, where one would look for the fourth part of the version.
        EXPECT_EQ(std::stoul(text.substr(text.rfind('.') + 1)), block.fileDateLS & 0xFFFF);
    }
}

}  // namespace corvex
