// What the elements of a command say in other forms than those that are saved.
#include <gtest/gtest.h>

#include <string>

#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

std::string Times(std::size_t count, const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

std::string SendOf(const std::string& attributes, const std::string& bytes) {
    return "<ADXCSENDCOMMAND><bytestring" + attributes + ">" + bytes + "</bytestring></ADXCSENDCOMMAND>";
}

std::string ChatterOf(const std::string& size, const std::string& bytes) {
    return "<ADXCLISTENCHATTER><bytestring size='" + size + "'>" + bytes + "</bytestring></ADXCLISTENCHATTER>";
}

const ObjectsCase kReadCommands[] = {
    {"BytesAreDigitsBetweenBlanksOfAnyKindAndKeepTheirLowHalf",
     SendOf(" size='0x5'", "0xF4 57\t1FF\r\n0 9 "),
     {"0 bytestring = 5: 244 87 255 0 9"}},
    {"AGreaterSizeAddsZeros", SendOf(" size='0x4'", "1 2 "), {"0 bytestring = 4: 1 2 0 0"}},
    {"ASmallerSizeCuts", SendOf(" size='0x1'", "1 2 "), {"0 bytestring = 1: 1"}},
    {"NoSizeIsNoBytes", SendOf("", "1 2 "), {"0 bytestring = 0:"}},
    {"ASizeBeyondTheScratchOfASendCommandIsCutToIt",
     SendOf(" size='0xFFFFFFFF'", "7"),
     {"0 bytestring = 512: 7" + Times(511, " 0")}},
    {"ASizeBeyondTheScratchOfAChatterIsCutToIt",
     ChatterOf("FFFFFFFF", "7"),
     {"0 bytestring = 256: 7" + Times(255, " 0")}},
    {"BytesBeyondTheScratchAreDropped",
     ChatterOf("FFFF", Times(300, "A ")),
     {"0 bytestring = 256:" + Times(256, " 10")}},
    {"BytesAreCutAt1023Characters",
     SendOf(" size='0x1A4'", Times(409, "0x11 ")),
     {"0 bytestring = 420:" + Times(204, " 17") + " 1" + Times(215, " 0")}},
    {"ACommandIdOfAMacroIsCutAt15Characters",
     "<ADXMACRO><NODE commandID='0123456789ABCDEFGHIJ'/></ADXMACRO>",
     {"0 node commandid = 0123456789ABCDE", "0 node repeatcount = 1", "0 node command = none"}},
};

TEST(CommandReader, ReadsAsTold) {
    ExpectObjects(kReadCommands);
}

}  // namespace
}  // namespace corvex
