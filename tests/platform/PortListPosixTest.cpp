#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/PortList_posix.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

namespace fs = std::filesystem;

TEST(PortListPosixTest, TellsWhatHangsOnAPortAndLeavesScreensOut) {
    const test::TestFolder folder;
    const fs::path tty = folder.Path() / "tty", adapter = folder.Path() / "usb1" / "1-2", ids = folder.Path() / "by-id";
    for (const char* name : {"ttyUSB10", "ttyUSB2", "ttyS0", "ttyS1", "tty7"})
        fs::create_directories(tty / name);
    fs::create_directories(adapter / "1-2:1.0" / "ttyUSB2");
    fs::create_directories(ids);
    fs::create_symlink(adapter / "1-2:1.0" / "ttyUSB2", tty / "ttyUSB2" / "device");
    for (const char* name : {"ttyUSB10", "ttyS0", "ttyS1"})
        fs::create_symlink(ids, tty / name / "device");
    fs::create_symlink("../../ttyUSB2", ids / "cable-7");
    const std::pair<fs::path, const char*> lines[] = {
        {adapter / "idVendor", "1234"}, {adapter / "idProduct", "abcd"}, {adapter / "manufacturer", "Maker"},
        {adapter / "product", "Cable"}, {adapter / "serial", "77"},      {tty / "ttyS0" / "type", "4"},
        {tty / "ttyS1" / "type", "0"}};
    for (const auto& [path, line] : lines)
        std::ofstream(path) << line << '\n';
    const auto ports = PortsIn(tty.string(), ids.string());
    ASSERT_EQ(ports.size(), 3U);
    EXPECT_EQ(ports[0].name + ports[0].adapter, "/dev/ttyS0");
    EXPECT_EQ(ports[1].name, "/dev/ttyUSB2");
    EXPECT_EQ(ports[1].adapter, "Maker Cable, 1234:abcd, serial number 77");
    EXPECT_EQ(ports[1].link, (ids / "cable-7").string());
    EXPECT_EQ(ports[2].name, "/dev/ttyUSB10");
    EXPECT_TRUE(PortsIn("no/such", "folder").empty());
}

}  // namespace
}  // namespace corvex
