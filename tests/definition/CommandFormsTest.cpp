// What the commands write of themselves.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXMacro.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

using test::Contains;
using test::WrittenText;

// Fourteen characters of an id, as it is found by; the node that names nobody is gone.
TEST(CommandForms, AMacroWritesResolvedNodesAlone) {
    ADXCTrigger trigger, plain;
    trigger.SetId("ABCDEFGHIJKLMNO");
    plain.SetId("A&B");
    ADXMacro macro;
    macro.SetId("A");
    EXPECT_EQ(WrittenText(macro), R"(<ADXMACRO id="A" idhash="0x86F344BB" title="" repeatcount="1" />)");
    macro.SetDesc("All", 3);
    macro.flags = 0x12;
    macro.repeatcount = 4000000000U;
    const ADXMacroNode nodes[] = {{nullptr, "NOBODY", 0, 1}, {&trigger, "", 3, 2}, {&plain, "", 0, 1}};
    for (const ADXMacroNode& node : nodes)
        macro.AddNode(&node);
    EXPECT_EQ(WrittenText(macro),
              R"(<ADXMACRO id="A" idhash="0x86F344BB" title="" repeatcount="4000000000" flags="0x00000012">)"
              R"(<desc>All</desc><NODE flags="0x00000003" commandID="ABCDEFGHIJKLMN" repeatcount="2" />)"
              R"(<NODE commandID="A&B" repeatcount="1" /></ADXMACRO>)");
}

TEST(CommandForms, ASendCommandWritesItselfWithAHexadecimalSize) {
    ADXCSendCommand command;
    EXPECT_TRUE(Contains(WrittenText(command), R"(<bytestring size="0x0"></bytestring>)"));
    command.SetId("A");
    command.SetTitle("Poll", 4);
    command.SetDesc("Data", 4);
    command.flags = 1;
    const std::uint8_t bytes[10] = {0xF4, 0x57, 0x01, 0x00, 0xB4};
    command.SetBytes(bytes, 10);
    command.replysize = 66;
    command.packetoffset = 10;
    command.packetsize = 4294967295U;
    EXPECT_EQ(WrittenText(command),
              R"(<ADXCSENDCOMMAND id="A" idhash="0x86F344BB" title="Poll" flags="0x00000001"><desc>Data</desc>)"
              R"(<bytestring size="0xA">0xF4 0x57 0x01 0x00 0xB4 0x00 0x00 0x00 0x00 0x00 </bytestring>)"
              R"(<replysize>66</replysize><replytimeout>200</replytimeout><packetoffset>10</packetoffset>)"
              R"(<packetsize>4294967295</packetsize></ADXCSENDCOMMAND>)");
}

TEST(CommandForms, AChatterWritesItsPatternWithADecimalSize) {
    ADXCListenChatter command;
    EXPECT_TRUE(Contains(WrittenText(command), R"(<bytestring size="0"></bytestring>)"));
    command.SetId("A");
    const std::vector<std::uint8_t> bytes(10, 0x0F);
    command.SetBytes(bytes.data(), 10);
    command.flags = 0x80000000;
    EXPECT_EQ(WrittenText(command),
              R"(<ADXCLISTENCHATTER id="A" idhash="0x86F344BB" title="" flags="0x80000000">)"
              R"(<listentimeout>400</listentimeout><bytestring size="10">)"
              R"(0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F 0x0F </bytestring></ADXCLISTENCHATTER>)");
}

TEST(CommandForms, ASendCommandWritesAtMost409BytesAndAChatter51) {
    const std::vector<std::uint8_t> bytes(500, 0xAB);
    ADXCSendCommand send;
    send.SetBytes(bytes.data(), 500);
    EXPECT_TRUE(Contains(WrittenText(send), "size=\"0x1F4\""));
    EXPECT_EQ(test::Count(WrittenText(send), "0xAB "), 409u);
    EXPECT_TRUE(Contains(WrittenText(send), "0xAB </bytestring>"));
    ADXCListenChatter chatter;
    for (const std::uint32_t size : {51U, 60U}) {
        chatter.SetBytes(bytes.data(), size);
        EXPECT_EQ(test::Count(WrittenText(chatter), "0xAB "), 51u);
        EXPECT_TRUE(Contains(WrittenText(chatter), "0xAB </bytestring>"));
    }
}

TEST(CommandForms, TheOtherCommandsWriteThemselves) {
    ADXCListenSilence silence;
    silence.SetId("RPM");
    silence.SetTitle("Quiet", 5);
    silence.SetDesc("Wait", 4);
    silence.silencelen = 20;
    EXPECT_EQ(WrittenText(silence),
              R"(<ADXCLISTENSILENCE id="RPM" idhash="0xCD0CD1DB" title="Quiet"><desc>Wait</desc>)"
              R"(<silencelen>20</silencelen><totaltimeout>400</totaltimeout></ADXCLISTENSILENCE>)");
    ADXC160BaudListen listen;
    listen.SetId("A");
    listen.flags = 0x10;
    listen.packetsize = 20;
    EXPECT_EQ(WrittenText(listen), R"(<ADXCLISTEN160BAUD id="A" idhash="0x86F344BB" title="" flags="0x00000010">)"
                                   R"(<packetsize>20</packetsize></ADXCLISTEN160BAUD>)");
    ADXCTrigger trigger;
    trigger.SetId("A");
    trigger.flags = 2;
    trigger.triggertype = 0x1E;
    EXPECT_EQ(WrittenText(trigger), R"(<ADXCTRIGGER id="A" idhash="0x86F344BB" title="" flags="0x00000002">)"
                                    R"(<triggertype>0x0000001E</triggertype></ADXCTRIGGER>)");
}

}  // namespace
}  // namespace corvex
