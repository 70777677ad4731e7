#include <gtest/gtest.h>

#include <memory>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXValue.h"
#include "export/RecordDecoder.h"
#include "logging/LogItem.h"

namespace corvex {
namespace {

class RecordDecoderTest : public ::testing::Test {
protected:
    RecordDecoderTest() {
        auto send = std::make_unique<ADXCSendCommand>();
        send->SetId("POLL");
        send->packetoffset = 3;
        send->packetsize = 4;
        send->flags = 1;
        send_ = send.get();
        definition_.InsertAt(std::move(send), ~0U);
        auto stream = std::make_unique<ADXC160BaudListen>();
        stream->SetId("STREAM");
        definition_.InsertAt(std::move(stream), ~0U);
        auto value = std::make_unique<ADXValue>();
        value->SetId("RPM");
        definition_.InsertAt(std::move(value), ~0U);
    }

    bool Decode(const char* id, std::uint32_t type) {
        LogItem item;
        item.commandId = HashId(id, static_cast<std::uint32_t>(std::char_traits<char>::length(id)));
        item.type = type;
        return DecodeRecord(definition_, item, {reply_, sizeof reply_}, &record_);
    }

    ADXDefinition definition_;
    ADXCSendCommand* send_ = nullptr;
    const std::uint8_t reply_[9] = {};
    DecodedRecord record_;
};

TEST_F(RecordDecoderTest, TakesAReplyFromThePacketToItsEnd) {
    ASSERT_TRUE(Decode("POLL", kTypeSendCommand));
    EXPECT_EQ(record_.commandId, send_->GetIdHash());
    EXPECT_EQ(record_.packet.Bytes(), reply_ + 3);
    EXPECT_EQ(record_.packet.Size(), 6U);
    EXPECT_TRUE(record_.updates);
}

TEST_F(RecordDecoderTest, UpdatesNothingWhereNoReplyIsProcessed) {
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

TEST_F(RecordDecoderTest, AsksForTheRightKindOfCommandOnlyBehindAReply) {
    EXPECT_FALSE(Decode("STREAM", kTypeSendCommand));
    EXPECT_FALSE(Decode("RPM", kTypeSendCommand));
    EXPECT_TRUE(Decode("POLL", kType160BaudListen));
    EXPECT_EQ(record_.packet.Size(), 9U);
}

TEST_F(RecordDecoderTest, DropsRecordsOfAnotherKind) {
    EXPECT_FALSE(Decode("POLL", kTypeListenSilence));
    EXPECT_FALSE(Decode("NONE", kTypeSendCommand));
    EXPECT_FALSE(Decode("NONE", kType160BaudListen));
}

}  // namespace
}  // namespace corvex
