#include <gtest/gtest.h>

#include "session/WindowTitle.h"

namespace corvex::test {
namespace {

TEST(WindowTitleTest, ShortFormKeepsFolderAndFile) {
    for (const char* path : {"C:\\cars\\logs\\drive.xdl", "C:/logs\\drive.xdl", "C:\\logs\\drive.xdl"})
        EXPECT_EQ("logs\\drive.xdl", ShortForm(path));
    EXPECT_EQ("logs/drive.xdl", ShortForm("/home/cars/logs/drive.xdl"));
    for (const char* path : {"C:\\drive.xdl", "/drive.xdl", "drive.xdl"})
        EXPECT_EQ("drive.xdl", ShortForm(path));
    EXPECT_EQ("", ShortForm(""));
    EXPECT_EQ("", ShortForm("\\"));
    EXPECT_EQ("logs\\", ShortForm("C:\\logs\\"));
}

TEST(WindowTitleTest, NamesBothFilesAndTheSpeedWhichIsCut) {
    EXPECT_EQ("Corvex - ADX: adx\\my.adx  XDL: logs\\a.xdl (Speed: 400%)",
              WindowTitle("C:\\adx\\my.adx", "C:\\logs\\a.xdl", 4.0F));
    EXPECT_EQ("Corvex - ADX:   XDL:  (Speed: 33%)", WindowTitle("", "", 0.339F));
}

}  // namespace
}  // namespace corvex::test
