#include <gtest/gtest.h>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXValue.h"
#include "export/RecordDecoder.h"
#include "logging/LogItem.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

class RecordDecoderTest : public ::testing::Test {
protected:
    RecordDecoderTest() {
        send_->packetoffset = 3;
        send_->packetsize = 4;
        send_->flags = 1;
        test::Add<ADXC160BaudListen>(definition_, "STREAM");
        test::Add<ADXValue>(definition_, "RPM");
    }

    bool Decode(const char* id, std::uint32_t type) {
        LogItem item;
        item.commandId = HashId(id, test::Length(id));
        item.type = type;
        return DecodeRecord(definition_, item, {reply_, sizeof reply_}, &record_);
    }

    ADXDefinition definition_;
    ADXCSendCommand* const send_ = test::Add<ADXCSendCommand>(definition_, "POLL");
    const std::uint8_t reply_[9] = {};
    DecodedRecord record_;
};

TEST_F(RecordDecoderTest, TakesAReplyFromThePacketToItsEndAndUpdatesWhereOneIsProcessed) {
    ASSERT_TRUE(Decode("POLL", kTypeSendCommand));
    EXPECT_EQ(record_.commandId, send_->GetIdHash());
    EXPECT_EQ(record_.packet.Bytes(), reply_ + 3);
    EXPECT_EQ(record_.packet.Size(), 6U);
    EXPECT_TRUE(record_.updates);
    send_->flags = 0xFFFFFFFE;
    ASSERT_TRUE(Decode("POLL", kTypeSendCommand));
    EXPECT_FALSE(record_.updates);
}

TEST_F(RecordDecoderTest, TakesA160BaudPacketWhole) {
    ASSERT_TRUE(Decode("STREAM", kType160BaudListen));
    EXPECT_EQ(record_.packet.Bytes(), reply_);
    EXPECT_EQ(record_.packet.Size(), 9U);
    EXPECT_FALSE(record_.updates);
}

TEST_F(RecordDecoderTest, AsksForTheRightKindOfCommandOnlyBehindAReplyAndDropsOtherRecords) {
    EXPECT_TRUE(Decode("POLL", kType160BaudListen));
    EXPECT_EQ(record_.packet.Size(), 9U);
    for (const char* id : {"STREAM", "RPM", "NONE"})
        EXPECT_FALSE(Decode(id, kTypeSendCommand)) << id;
    EXPECT_FALSE(Decode("POLL", kTypeListenSilence));
    EXPECT_FALSE(Decode("NONE", kType160BaudListen));
}

}  // namespace
}  // namespace corvex
