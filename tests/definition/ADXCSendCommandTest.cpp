#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "definition/ADXCSendCommand.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXCSendCommand, StartsWithItsDefaults) {
    const ADXCSendCommand command;
    EXPECT_EQ(command.GetType(), 0x00020000u);
    EXPECT_EQ(command.bytestring(), nullptr);
    EXPECT_EQ(command.size(), 0u);
    EXPECT_EQ(command.replysize, 0u);
    EXPECT_EQ(command.replytimeout, 200u);
    EXPECT_EQ(command.packetoffset, 0u);
    EXPECT_EQ(command.packetsize, 0u);
    EXPECT_EQ(command.flags, 0u);
}

TEST(ADXCSendCommand, ForgetsItsBytesOnNull) {
    ADXCSendCommand command;
    const std::uint8_t bytes[] = {1, 0, 3};
    command.SetBytes(bytes, 3);
    EXPECT_EQ(command.size(), 3u);
    command.SetBytes(nullptr, 0);
    EXPECT_EQ(command.bytestring(), nullptr);
    EXPECT_EQ(command.size(), 0u);
}

TEST(ADXCSendCommand, WritesItself) {
    ADXCSendCommand command;
    command.SetId("A");
    command.SetTitle("Poll", 4);
    command.SetDesc("Data", 4);
    command.flags = 1;
    std::uint8_t bytes[10] = {0xF4, 0x57, 0x01, 0x00, 0xB4};
    command.SetBytes(bytes, 10);
    command.replysize = 66;
    command.packetoffset = 10;
    command.packetsize = 4294967295U;
    EXPECT_EQ(test::WrittenText(command),
              "<ADXCSENDCOMMAND id=\"A\" idhash=\"0x86F344BB\" title=\"Poll\" flags=\"0x00000001\">\n"
              "    <desc>Data</desc>\n"
              "    <bytestring size=\"0xA\">0xF4 0x57 0x01 0x00 0xB4 0x00 0x00 0x00 0x00 0x00 </bytestring>\n"
              "    <replysize>66</replysize>\n"
              "    <replytimeout>200</replytimeout>\n"
              "    <packetoffset>10</packetoffset>\n"
              "    <packetsize>4294967295</packetsize>\n"
              "</ADXCSENDCOMMAND>\n");
}

TEST(ADXCSendCommand, WritesAnEmptyByteStringWithoutBytes) {
    const ADXCSendCommand command;
    EXPECT_NE(test::WrittenText(command).find("    <bytestring size=\"0x0\"></bytestring>\n"), std::string::npos);
}

TEST(ADXCSendCommand, WritesAtMost409Bytes) {
    ADXCSendCommand command;
    const std::vector<std::uint8_t> bytes(500, 0xAB);
    command.SetBytes(bytes.data(), 500);
    const std::string written = test::WrittenText(command);
    EXPECT_NE(written.find("size=\"0x1F4\""), std::string::npos);
    EXPECT_EQ(test::Count(written, "0xAB "), 409u);
    EXPECT_NE(written.find("0xAB </bytestring>"), std::string::npos);
}

TEST(ADXCSendCommand, NeedsAWriter) {
    EXPECT_EQ(ADXCSendCommand().Write(nullptr), 0);
}

TEST(ADXCSendCommand, LetsItemsReadToTheEndOfTheReply) {
    ADXCSendCommand command;
    command.packetoffset = 3;
    command.packetsize = 1;
    const std::uint8_t reply[9] = {};
    EXPECT_EQ(command.ReadablePart({reply, 9}).Bytes(), reply + 3);
    EXPECT_EQ(command.ReadablePart({reply, 9}).Size(), 6u);
    EXPECT_EQ(command.ReadablePart({reply, 2}).Size(), 0u);
    EXPECT_TRUE(command.ReadablePart({reply, 2}));
    EXPECT_FALSE(command.ReadablePart(nullptr));
}

TEST(ADXCSendCommand, CutsItsPacketToTheReply) {
    ADXCSendCommand command;
    command.packetoffset = 3;
    command.packetsize = 4;
    const std::uint8_t reply[9] = {};
    EXPECT_EQ(command.Packet({reply, 9}).Bytes(), reply + 3);
    EXPECT_EQ(command.Packet({reply, 9}).Size(), 4u);
    EXPECT_EQ(command.Packet({reply, 5}).Size(), 2u);
    EXPECT_EQ(command.Packet({reply, 2}).Size(), 0u);
    EXPECT_TRUE(command.Packet({reply, 2}));
    command.packetoffset = 0xFFFFFFFF;
    command.packetsize = 0xFFFFFFFF;
    EXPECT_EQ(command.Packet({reply, 9}).Size(), 0u);
    EXPECT_FALSE(command.Packet(nullptr));
}

}  // namespace
}  // namespace corvex
