#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

std::vector<int> BytesOf(const std::uint8_t* bytes, std::uint32_t size) {
    return {bytes, bytes + size};
}

TEST(CommandReader, ReadsSilence) {
    ADXDefinition definition;
    ParseObjects("<ADXCLISTENSILENCE><silencelen>10</silencelen><totaltimeout>20</totaltimeout></ADXCLISTENSILENCE>",
                 definition);
    EXPECT_EQ(Get<ADXCListenSilence>(definition).silencelen, 10u);
    EXPECT_EQ(Get<ADXCListenSilence>(definition).totaltimeout, 20u);
}

TEST(CommandReader, ReadsASendCommand) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXCSENDCOMMAND id='S' title='T' flags='0x1'><desc>D</desc>"
        "<bytestring size='0x5'>0xF4 57\t1FF\r\n0 9 </bytestring><replysize>63</replysize>"
        "<replytimeout>250</replytimeout><packetoffset>10</packetoffset><packetsize>59</packetsize></ADXCSENDCOMMAND>",
        definition);
    const auto& command = Get<ADXCSendCommand>(definition);
    EXPECT_STREQ(command.Title(), "T");
    EXPECT_STREQ(command.Desc(), "D");
    EXPECT_EQ(command.flags, 1u);
    EXPECT_EQ(BytesOf(command.bytestring(), command.size()), (std::vector<int>{0xF4, 0x57, 0xFF, 0, 9}));
    EXPECT_EQ(command.replysize, 63u);
    EXPECT_EQ(command.replytimeout, 250u);
    EXPECT_EQ(command.packetoffset, 10u);
    EXPECT_EQ(command.packetsize, 59u);
}

TEST(CommandReader, TheSizeSaysHowManyBytesThereAre) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXCSENDCOMMAND><bytestring size='0x4'>1 2 </bytestring></ADXCSENDCOMMAND>"
        "<ADXCSENDCOMMAND><bytestring size='0x1'>1 2 </bytestring></ADXCSENDCOMMAND>"
        "<ADXCSENDCOMMAND><bytestring>1 2 </bytestring></ADXCSENDCOMMAND>",
        definition);
    const auto& longer = Get<ADXCSendCommand>(definition, 0);
    EXPECT_EQ(BytesOf(longer.bytestring(), longer.size()), (std::vector<int>{1, 2, 0, 0}));
    EXPECT_EQ(Get<ADXCSendCommand>(definition, 1).size(), 1u);
    EXPECT_EQ(Get<ADXCSendCommand>(definition, 2).size(), 0u);
}

TEST(CommandReader, ASizeBeyondTheScratchIsCutToIt) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXCSENDCOMMAND><bytestring size='0xFFFFFFFF'>7</bytestring></ADXCSENDCOMMAND>"
        "<ADXCLISTENCHATTER><bytestring size='FFFFFFFF'>7</bytestring></ADXCLISTENCHATTER>",
        definition);
    const auto& send = Get<ADXCSendCommand>(definition, 0);
    const auto& chatter = Get<ADXCListenChatter>(definition, 1);
    ASSERT_EQ(send.size(), 512u);
    ASSERT_EQ(chatter.size(), 256u);
    EXPECT_EQ(send.bytestring()[0], 7);
    EXPECT_EQ(send.bytestring()[511], 0);
    EXPECT_EQ(chatter.bytestring()[255], 0);
}

TEST(CommandReader, BytesBeyondTheScratchAreDropped) {
    std::string bytes;
    for (int i = 0; i < 300; ++i)
        bytes += "A ";
    ADXDefinition definition;
    ParseObjects("<ADXCLISTENCHATTER><bytestring size='FFFF'>" + bytes + "</bytestring></ADXCLISTENCHATTER>",
                 definition);
    const auto& chatter = Get<ADXCListenChatter>(definition);
    ASSERT_EQ(chatter.size(), 256u);
    EXPECT_EQ(chatter.bytestring()[255], 0xA);
}

TEST(CommandReader, ReadsChatterListenAndTrigger) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXCLISTENCHATTER flags='4'><listentimeout>500</listentimeout><bytestring size='2'>0xF0 0x0F </bytestring>"
        "</ADXCLISTENCHATTER><ADXCLISTEN160BAUD flags='5'><packetsize>20</packetsize></ADXCLISTEN160BAUD>"
        "<ADXCTRIGGER flags='6'><triggertype>0x1E</triggertype></ADXCTRIGGER>",
        definition);
    const auto& chatter = Get<ADXCListenChatter>(definition, 0);
    EXPECT_EQ(chatter.flags, 4u);
    EXPECT_EQ(chatter.listentimeout, 500u);
    EXPECT_EQ(BytesOf(chatter.bytestring(), chatter.size()), (std::vector<int>{0xF0, 0x0F}));
    EXPECT_EQ(Get<ADXC160BaudListen>(definition, 1).flags, 5u);
    EXPECT_EQ(Get<ADXC160BaudListen>(definition, 1).packetsize, 20u);
    EXPECT_EQ(Get<ADXCTrigger>(definition, 2).flags, 6u);
    EXPECT_EQ(Get<ADXCTrigger>(definition, 2).triggertype, 0x1Eu);
}

TEST(CommandReader, ReadsAMacro) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXMACRO id='M' repeatcount='3' flags='0x2'><desc>D</desc><NODE flags='0x1' commandID='A' repeatcount='5'/>"
        "<NODE commandID='0123456789ABCDEFGHIJ'/></ADXMACRO><ADXCTRIGGER id='A'/>",
        definition);
    const auto& macro = Get<ADXMacro>(definition);
    EXPECT_EQ(macro.repeatcount, 3u);
    EXPECT_EQ(macro.flags, 2u);
    ASSERT_EQ(macro.GetNodeCount(), 2u);
    ADXMacroNode node;
    macro.GetNode(0, &node);
    EXPECT_EQ(node.flags, 1u);
    EXPECT_EQ(node.repeatcount, 5u);
    EXPECT_STREQ(node.commandid, "A");
    EXPECT_EQ(node.command, definition.GetObject(kTypeAny, 1));
    macro.GetNode(1, &node);
    EXPECT_STREQ(node.commandid, "0123456789ABCDE") << "cut at 15 characters";
    EXPECT_EQ(node.repeatcount, 1u);
    EXPECT_EQ(node.command, nullptr);
}

}  // namespace
}  // namespace corvex
