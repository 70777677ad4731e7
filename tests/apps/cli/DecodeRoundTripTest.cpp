// What was recorded by the engine decodes to what a direct computation gives.

#include <gtest/gtest.h>

#include <charconv>
#include <cstdio>
#include <random>
#include <sstream>

#include "definition/ADXBitmask.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXValue.h"
#include "logging/DataLogEngine.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/VirtualClock.h"

namespace corvex {
namespace {

using test::Bytes;

struct Sample {
    const ADXCSendCommand* command;
    Bytes reply;
};

std::vector<Sample> RandomSamples(const ADXDefinition& definition, std::mt19937& random) {
    std::vector<const ADXCSendCommand*> commands;
    for (const auto& object : definition.Objects()) {
        if (object->GetType() == kTypeSendCommand) commands.push_back(static_cast<ADXCSendCommand*>(object.get()));
    }
    std::vector<Sample> samples;
    for (unsigned i = 0; i < 300; ++i) {
        const auto* const command = commands[random() % commands.size()];
        Bytes reply(command->replysize);
        // Some words come again and again, and some with their low bytes alone.
        for (std::uint8_t& byte : reply)
            byte = static_cast<std::uint8_t>(i % 3 == 0 ? random() : random() % 3);
        samples.push_back({command, reply});
    }
    return samples;
}

void RecordLog(const std::string& path, const ADXDefinition& definition, const std::vector<Sample>& samples) {
    test::VirtualClock clock;
    const ScopedClock scope(clock);
    DataLogEngine log;
    ASSERT_EQ(log.Open(path.c_str(), kLogForWriting), kLogSuccess);
    for (const auto& object : definition.Objects()) {
        if (object->GetType() != kTypeSendCommand) continue;
        LogItem item;
        item.commandId = object->GetIdHash();
        item.type = kTypeSendCommand;
        item.packedSize = item.fullSize = static_cast<ADXCSendCommand&>(*object).replysize;
        item.mask = LogMask::AllSet();
        ASSERT_EQ(log.AddItem(item), kLogSuccess);
    }
    ASSERT_EQ(log.StartRecording(), kLogSuccess);
    for (const Sample& sample : samples) {
        ASSERT_EQ(log.AddSample(sample.command->GetIdHash(), sample.reply.data(),
                                static_cast<std::uint32_t>(sample.reply.size())),
                  kLogSuccess);
        clock.AdvanceMilliseconds(83);
    }
    ASSERT_EQ(log.StopRecording(), kLogSuccess);
    ASSERT_NE(log.Close(), 0U);
}

// The row as the slowest and plainest program would make it.
std::string DirectRow(ADXDefinition& definition, const Sample& sample) {
    const PacketView packet(sample.reply.data() + sample.command->packetoffset, sample.command->packetsize);
    const std::uint32_t id = sample.command->GetIdHash();
    definition.UpdateValues(packet, id);
    std::string row;
    for (const auto& object : definition.Objects()) {
        if (object->GetType() == kTypeValue) {
            auto& value = static_cast<ADXValue&>(*object);
            const bool own = value.parentcmdidhash == 0 || value.parentcmdidhash == id;
            char text[40];
            *std::to_chars(text, text + sizeof text, value.Compute(definition, own ? packet : nullptr)).ptr = '\0';
            row.append(",").append(text);
        } else if (object->GetType() == kTypeBitmask) {
            auto& bit = static_cast<ADXBitmask&>(*object);
            const bool own = bit.parentcmdidhash == 0 || bit.parentcmdidhash == id;
            row.append(bit.IsSet(definition, own ? packet : nullptr) != 0 ? ",1" : ",0");
        }
    }
    return row;
}

TEST(DecodeRoundTripTest, RecordedRepliesDecodeToWhatADirectComputationGives) {
    std::mt19937 random(5);
    for (const char* name : {"harrier-8192.adx", "osprey-multi.adx"}) {
        ADXDefinition definition;
        ASSERT_NE(definition.Load(Example(name).c_str(), nullptr), 0);
        const TempFile log("", ".xdl");
        const std::vector<Sample> samples = RandomSamples(definition, random);
        RecordLog(log.Path(), definition, samples);
        const ToolResult result = RunInside({"decode", "-d", Example(name), log.Path()});
        EXPECT_EQ(result.err, "");
        std::istringstream lines(result.out);
        std::string line;
        ASSERT_TRUE(std::getline(lines, line));
        std::size_t rows = 0;
        for (const Sample& sample : samples) {
            ASSERT_TRUE(std::getline(lines, line));
            char time[16];
            std::snprintf(time, sizeof time, "%.3f", static_cast<double>(rows++) * 0.083);
            EXPECT_EQ(line, time + DirectRow(definition, sample)) << name;
        }
        EXPECT_FALSE(std::getline(lines, line));
    }
}

}  // namespace
}  // namespace corvex
