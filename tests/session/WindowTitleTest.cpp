#include <gtest/gtest.h>

#include "session/WindowTitle.h"

namespace corvex::test {
namespace {

TEST(WindowTitleTest, ShortFormKeepsFolderAndFile) {
    EXPECT_EQ("logs\\drive.xdl", ShortForm("C:\\cars\\logs\\drive.xdl"));
    EXPECT_EQ("logs/drive.xdl", ShortForm("/home/cars/logs/drive.xdl"));
    EXPECT_EQ("logs\\drive.xdl", ShortForm("C:/logs\\drive.xdl"));
    EXPECT_EQ("logs\\drive.xdl", ShortForm("C:\\logs\\drive.xdl"));
}

TEST(WindowTitleTest, ShortFormOfFewerComponents) {
    EXPECT_EQ("drive.xdl", ShortForm("C:\\drive.xdl"));
    EXPECT_EQ("drive.xdl", ShortForm("/drive.xdl"));
    EXPECT_EQ("drive.xdl", ShortForm("drive.xdl"));
    EXPECT_EQ("", ShortForm(""));
    EXPECT_EQ("", ShortForm("\\"));
    EXPECT_EQ("logs\\", ShortForm("C:\\logs\\"));
}

TEST(WindowTitleTest, NamesBothFilesAndTheSpeed) {
    EXPECT_EQ("Corvex - ADX: adx\\my.adx  XDL: logs\\a.xdl (Speed: 400%)",
              WindowTitle("C:\\adx\\my.adx", "C:\\logs\\a.xdl", 4.0F));
    EXPECT_EQ("Corvex - ADX:   XDL:  (Speed: 25%)", WindowTitle("", "", 0.25F));
}

TEST(WindowTitleTest, SpeedIsCutNotRounded) {
    EXPECT_EQ("Corvex - ADX:   XDL:  (Speed: 33%)", WindowTitle("", "", 0.339F));
}

}  // namespace
}  // namespace corvex::test
