#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <memory>

#include "apps/sim/BitStream160.h"
#include "apps/sim/LineDriver.h"
#include "apps/sim/ReplySource.h"
#include "platform/Clock.h"
#include "tests/apps/sim/SimTestHelper.h"
#include "tests/support/LogBytes.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

class ReplySourceTest : public ::testing::Test {
protected:
    ReplySourceTest() {
        poll = test::AddSend(definition, "POLL", {0xF4, 0x57}, 3).GetIdHash();
        other = test::AddSend(definition, "OTHER", {0xE4, 0x57}, 3).GetIdHash();
        auto& listen = test::Add<ADXC160BaudListen>(definition, "STREAM");
        listen.packetsize = 2;
        stream = listen.GetIdHash();
    }

    // POLL twice, and two packets of the stream; nothing of OTHER.
    std::shared_ptr<const RecordedReplies> Recording(bool withStream) {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor({0, 0}), 0).ItemCount(2);
        log.Item(poll, 0x20000, 3, 3, {}).Item(stream, 0x100000, 2, 2, {});
        log.Record(0, 0, {1, 2, 3});
        if (withStream) log.Record(1, 10, {0xA5, 0x0F}).Record(1, 20, {0x5A, 0xF0});
        log.Record(0, 30, {4, 5, 6});
        const test::TestFolder folder;
        const std::string path = folder.Put("source.xdl", std::string(log.bytes.begin(), log.bytes.end()));
        auto recording = std::make_shared<RecordedReplies>();
        std::string error;
        EXPECT_TRUE(recording->Read(path, error)) << error;
        return recording;
    }

    ADXDefinition definition;
    std::uint32_t poll = 0, other = 0, stream = 0;
};

TEST_F(ReplySourceTest, RepeatsRecordedRepliesInOrderAndBeginsAnew) {
    ReplySource source(definition, 1, Recording(true));
    EXPECT_EQ(source.Next(0, 0.0), (Bytes{1, 2, 3}));
    EXPECT_EQ(source.NextStreamPacket(0.0), (Bytes{0xA5, 0x0F}));
    EXPECT_EQ(source.Next(0, 0.0), (Bytes{4, 5, 6}));
    EXPECT_EQ(source.Next(0, 0.0), (Bytes{1, 2, 3}));
    EXPECT_EQ(source.NextStreamPacket(0.0), (Bytes{0x5A, 0xF0}));
    EXPECT_EQ(source.NextStreamPacket(0.0), (Bytes{0xA5, 0x0F}));
}

TEST_F(ReplySourceTest, SimulatesWhatTheLogHasNoReplyFor) {
    const ReplyBuilder model(definition, 7);
    ReplySource source(definition, 7, Recording(false));
    EXPECT_EQ(source.Next(1, 3.0), model.Build(1, 3.0));
    EXPECT_EQ(source.NextStreamPacket(3.0), model.BuildStreamPacket(3.0));
    ReplySource plain(definition, 7, nullptr);
    EXPECT_EQ(plain.Next(0, 3.0), model.Build(0, 3.0));
}

TEST_F(ReplySourceTest, AnswersAndStreamsOnTheLine) {
    const auto sent = [&](bool withStream, double seconds) {
        SimOptions options;
        options.pace = withStream;
        options.seconds = seconds;
        options.recording = Recording(withStream);
        test::LineFake line;
        for (const double at : {0.1, 0.3, 0.5})
            if (!withStream) line.Type(at, {0xF4, 0x57});
        const std::atomic<bool> stop{false};
        LineDriver driver(line, definition, options);
        driver.Run(stop);
        return line.SentBytes();
    };
    Bytes packets = EncodeStreamPacket(Bytes{0xA5, 0x0F}), streamed = sent(true, 0.75);
    const Bytes second = EncodeStreamPacket(Bytes{0x5A, 0xF0});
    packets.insert(packets.end(), second.begin(), second.end());
    ASSERT_GE(streamed.size(), packets.size());
    streamed.resize(packets.size());
    EXPECT_EQ(streamed, packets);
    definition.Clear();
    poll = test::AddSend(definition, "POLL", {0xF4, 0x57}, 3).GetIdHash();
    EXPECT_EQ(sent(false, 1.0), (Bytes{1, 2, 3, 4, 5, 6, 1, 2, 3}));
}

}  // namespace
}  // namespace corvex
