#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numeric>

#include "apps/sim/FieldWriter.h"
#include "apps/sim/RawCurve.h"
#include "apps/sim/ReplyBuilder.h"
#include "definition/ADXLookupTable.h"
#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;

struct Span {
    double low = 1e300, high = -1e300;
    void Add(double number) {
        low = std::min(low, number);
        high = std::max(high, number);
    }
};

// What the field can make the value show at all.
Span Reach(const ADXDefinition& definition, ADXValue& value, std::uint32_t options) {
    const bool lowFirst = (value.flags & ADXValue::kLowByteFirst) != 0;
    const double words = std::ldexp(1.0, static_cast<int>(FieldBytes(value.sizeinbits) * 8));
    const double step = std::max(1.0, std::floor(words / 4096));
    Span reach;
    Bytes packet(value.packetoffset + 4U);
    for (double word = 0; word < words; word += step) {
        for (const double each : {word, words - 1 - word}) {
            WriteField(packet.data() + value.packetoffset, static_cast<std::uint32_t>(each), value.sizeinbits,
                       lowFirst);
            reach.Add(value.Compute(definition, packet.data(), 0, options));
        }
    }
    return reach;
}

std::uint32_t OptionsFor(const ADXValue& value) {
    const bool texts = value.lookup != nullptr && value.lookup->GetOutputType() == ADXLookupTable::kText;
    return texts ? kReadBeforeTable : 0U;
}

// Ten minutes of replies through the definition's own readers, one every 300 ms (a stream packet every 1.2 s).
class Replies {
public:
    explicit Replies(ADXDefinition& definition, Motion motion = Motion::kSweep) : definition_(definition) {
        const ReplyBuilder builder(definition, 1, motion);
        const double period = builder.HasStream() ? 1.2 : 0.3;
        for (double time = 0; time < 600; time += period) {
            std::size_t index = 0;
            for (std::uint32_t n = 0; ADXObject* object = definition.GetObject(kTypeSendCommand, n); ++n) {
                const auto& send = static_cast<const ADXCSendCommand&>(*object);
                if (send.size() == 0) continue;
                const Bytes reply = builder.Build(index++, time);
                if ((send.flags & 1U) == 0) continue;
                EXPECT_EQ(reply.size(), send.replysize);
                Take({reply.data() + send.packetoffset, send.packetsize}, send.GetIdHash());
            }
            if (builder.HasStream()) {
                const Bytes packet = builder.BuildStreamPacket(time);
                const ADXObject* listen = definition.GetObject(kType160BaudListen, 0);
                Take({packet.data(), static_cast<std::uint32_t>(packet.size())}, listen->GetIdHash());
            }
        }
    }

    void ExpectSweeps() {
        for (std::uint32_t n = 0; ADXObject* object = definition_.GetObject(kTypeValue, n); ++n) {
            auto& value = static_cast<ADXValue&>(*object);
            if (!RawCurve::Applies(value) || value.HasLinks()) continue;
            const Span reach = Reach(definition_, value, OptionsFor(value));
            const double low = std::max<double>(reach.low, value.rangelow);
            const double high = std::min<double>(reach.high, value.rangehigh);
            const double slack = 0.01 * (high - low) + Resolution(value, reach);
            EXPECT_LE(seen[&value].low, low + slack) << value.Id();
            EXPECT_GE(seen[&value].high, high - slack) << value.Id();
        }
    }

    void ExpectToggles() {
        for (std::uint32_t n = 0; const ADXObject* object = definition_.GetObject(kTypeBitmask, n); ++n) {
            EXPECT_GT(set[object], 0) << object->Id() << " is never set";
            EXPECT_GT(clear[object], 0) << object->Id() << " is never clear";
        }
    }

    std::map<const ADXObject*, Span> seen;
    std::map<const ADXObject*, int> set, clear;

private:
    static double Resolution(const ADXValue& value, const Span& reach) {
        const double words = std::ldexp(1.0, static_cast<int>(FieldBytes(value.sizeinbits) * 8));
        return (reach.high - reach.low) / (words - 1);
    }

    void Take(PacketView packet, std::uint32_t command) {
        definition_.UpdateValues(packet, command);
        for (std::uint32_t n = 0; ADXObject* object = definition_.GetObject(kTypeValue, n); ++n) {
            auto& value = static_cast<ADXValue&>(*object);
            if (!value.BelongsTo(command)) continue;
            seen[&value].Add(value.Compute(definition_, nullptr, 0, OptionsFor(value)));
        }
        for (std::uint32_t n = 0; ADXObject* object = definition_.GetObject(kTypeBitmask, n); ++n) {
            auto& bit = static_cast<ADXBitmask&>(*object);
            if (!bit.BelongsTo(command)) continue;
            ++(bit.IsSet(definition_, nullptr) != 0 ? set : clear)[&bit];
        }
    }

    ADXDefinition& definition_;
};

class ReplyBuilderOnExample : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        char error[ADXDefinition::kErrorSize] = "";
        ASSERT_EQ(definition.Load(test::ExamplePath(GetParam()).c_str(), error), 1) << error;
    }
    ADXDefinition definition;
};

TEST_P(ReplyBuilderOnExample, SweepsEveryValueAndTogglesEveryFlagInTenMinutes) {
    Replies replies(definition);
    EXPECT_GT(replies.seen.size(), 10U);
    replies.ExpectSweeps();
    replies.ExpectToggles();
}

INSTANTIATE_TEST_SUITE_P(Examples, ReplyBuilderOnExample,
                         testing::Values("harrier-8192.adx", "merlin-160.adx", "osprey-multi.adx"),
                         [](const auto& info) { return std::string(info.param, std::strcspn(info.param, "-")); });

TEST(ReplyBuilder, SweepsEveryWidthOrderAndSign) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 40);
    std::uint32_t offset = 0;
    for (const std::uint32_t bits : {8U, 12U, 16U, 24U, 32U}) {
        for (const std::uint32_t flags : {0U, 1U, 2U, 3U}) {
            if (bits == 24 && (flags & 1U) != 0) continue;  // reads 0.0 whatever comes
            std::string id = std::to_string(bits);
            id.append("F").append(std::to_string(flags));
            auto& value = test::AddValue(definition, id.c_str(), offset, bits);
            value.flags = flags;
            value.rangelow = (flags & 1U) != 0 ? -100.0F : 20.0F;
            value.rangehigh = 110.0F;
            offset += FieldBytes(bits);
        }
    }
    auto& send = static_cast<ADXCSendCommand&>(*definition.GetObject(kTypeSendCommand, 0));
    send.replysize = send.packetsize = offset;
    Replies replies(definition);
    replies.ExpectSweeps();
    // And not beyond: the words run over the display range only.
    for (const auto& [value, span] : replies.seen)
        EXPECT_LE(span.high, 111.0) << value->Id();
}

TEST(ReplyBuilder, FollowsAReciprocalAndRunsOverTheWholeFieldWhereAnEquationTurns) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 4);
    auto& value = test::AddValue(definition, "PARABOLA", 0, 8, "(X-128)#2");
    auto& nothing = test::AddValue(definition, "FAROFF", 1, 8);
    value.rangehigh = 100;
    nothing.rangelow = 1000;
    nothing.rangehigh = 2000;
    auto& period = test::AddValue(definition, "PERIOD", 2, 16, "1000000/X");
    period.rangelow = 400;
    period.rangehigh = 7000;
    const Replies replies(definition);
    EXPECT_NEAR(replies.seen.at(&period).low, 400, 60);
    EXPECT_NEAR(replies.seen.at(&period).high, 7000, 60);
    EXPECT_EQ(replies.seen.at(&value).low, 0);
    EXPECT_EQ(replies.seen.at(&value).high, 128 * 128);
    EXPECT_EQ(replies.seen.at(&nothing).low, 0);
    EXPECT_EQ(replies.seen.at(&nothing).high, 255);
}

TEST(ReplyBuilder, GivesOverlappingValuesTheirTurns) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 4);
    test::AddValue(definition, "WORD", 0, 16).rangehigh = 65535;
    test::AddValue(definition, "HIGHBYTE", 0, 8).rangehigh = 50;  // would hold the word down if it were always written
    test::AddValue(definition, "LOWBYTE", 1, 8);
    test::AddValue(definition, "NEXT", 1, 16).rangehigh = 65535;
    test::AddValue(definition, "LOWER", 3, 8).rangehigh = 100;
    test::AddValue(definition, "UPPER", 3, 8).rangelow = 90;
    Replies replies(definition);
    replies.ExpectSweeps();
}

TEST(ReplyBuilder, TogglesSelectorsExclusivesAndFlagsOverValues) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 8);
    for (std::uint32_t setting = 0; setting < 4; ++setting) {
        test::AddBit(definition, std::to_string(setting).c_str(), 0, 3, setting);
    }
    test::AddBit(definition, "OTHER", 0, 4, 4);
    test::AddBit(definition, "NOTSET", 0, 8, 0);
    auto& exclusive = test::AddBit(definition, "EXCLUSIVE", 1, 0x55, 0xFF);
    exclusive.bitop = ADXBitmask::kXor;
    auto& wide = test::AddBit(definition, "WIDE", 2, 0x0102, 0x0002);
    wide.sizeinbits = 16;
    auto& little = test::AddBit(definition, "LITTLE", 4, 0x8000, 0x8000);
    little.sizeinbits = 16;
    little.flags = ADXBitmask::kLowByteFirst;
    test::AddValue(definition, "HELD", 6, 8).rangehigh = 40;
    test::AddBit(definition, "TOPBIT", 6, 0x80, 0x80);
    Replies replies(definition);
    replies.ExpectToggles();
    replies.ExpectSweeps();
}

TEST_P(ReplyBuilderOnExample, ShowsADriveInWhichTheAlarmsAreEvents) {
    Replies replies(definition, Motion::kDrive);
    for (const auto& [object, span] : replies.seen) {
        const auto& value = static_cast<const ADXValue&>(*object);
        const bool counts = std::strstr(value.Title(), "Count") != nullptr;  // to 255, past the round end of its scale
        if (value.HasLinks() || OptionsFor(value) != 0 || counts) continue;
        EXPECT_GE(span.low, static_cast<double>(value.rangelow) - 0.01) << value.Id();
        EXPECT_LE(span.high, static_cast<double>(value.rangehigh) + 0.01) << value.Id();
    }
    const auto find = [&](const char* id) { return definition.FindById(id); };
    const auto& rpm = replies.seen.at(find("RPM"));
    EXPECT_EQ(rpm.low, 0);
    EXPECT_NEAR(rpm.high, 4700, 120);
    EXPECT_NEAR(replies.seen.at(find("CLT")).high, 91.5, 2);
    EXPECT_NEAR(replies.seen.at(find("BATT")).low, 10, 0.5);
    EXPECT_GT(replies.set.at(find("CLOOP")), 3 * replies.clear.at(find("CLOOP")) / 2);
    EXPECT_EQ(replies.set[find("FCLT")] == 0 || replies.clear[find("FCLT")] == 0, true);  // never a fault
}

TEST(ReplyBuilder, TakesToAndFroWhatNoWordsTellAndLeavesCalibrationsAlone) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 8);
    auto& own = test::AddValue(definition, "OWN", 0, 8);
    own.rangehigh = 200;
    auto& word = test::AddValue(definition, "WORD", 1, 16);
    word.rangehigh = 60000;
    auto& part = test::AddValue(definition, "PART", 2, 8);  // over the low byte of the one before
    auto& fixed = test::AddValue(definition, "CAL", 3, 8);
    fixed.SetTitle("Calibration", 11);
    auto& speed = test::AddValue(definition, "SPEED", 4, 16, "1000000/X");
    speed.SetTitle("Engine Speed", 12);
    speed.SetUnits("rpm", 3);
    test::AddBit(definition, "ALONE", 6, 4, 4);
    for (std::uint32_t setting = 0; setting < 4; ++setting)
        test::AddBit(definition, std::to_string(setting).c_str(), 6, 3, setting);
    test::AddBit(definition, "OVER", 0, 1, 1);
    Replies replies(definition, Motion::kDrive);
    EXPECT_NEAR(replies.seen.at(&own).low, 40, 20);
    EXPECT_NEAR(replies.seen.at(&own).high, 160, 20);
    EXPECT_LT(replies.seen.at(&word).high, 60000);
    EXPECT_GT(replies.seen.at(&part).high, 240);
    EXPECT_EQ(replies.seen.at(&fixed).low, replies.seen.at(&fixed).high);
    EXPECT_NEAR(replies.seen.at(&speed).high, 4700, 120);
    for (const char* id : {"0", "1", "2", "3"})
        EXPECT_NEAR(replies.set[definition.FindById(id)], 500, 200) << id;
    EXPECT_NEAR(replies.set[definition.FindById("ALONE")], 1000, 300);
}

TEST(ReplyBuilder, LeavesMasksThatCannotToggleAlone) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 1);
    test::AddBit(definition, "ALWAYS", 0, 0, 0);
    test::AddBit(definition, "NEVER", 0, 1, 2);
    for (const Motion motion : {Motion::kSweep, Motion::kDrive}) {
        const ReplyBuilder builder(definition, 1, motion);
        for (double time = 0; time < 60; time += 1)
            EXPECT_EQ(builder.Build(0, time), Bytes{0});
    }
}

TEST(ReplyBuilder, MakesHeaderAndChecksumAroundThePacket) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {0xE4, 0x57, 0x01, 0x00, 0xC4}, 63, 3, 59);
    test::AddValue(definition, "V", 0, 8);
    const ReplyBuilder builder(definition, 1);
    for (double time = 0; time < 30; time += 1) {
        const Bytes reply = builder.Build(0, time);
        ASSERT_EQ(reply.size(), 63U);
        EXPECT_EQ(reply[0], 0xE4);
        EXPECT_EQ(reply[1], 0x52 + 63);
        EXPECT_EQ(reply[2], 0x01);
        EXPECT_EQ(std::accumulate(reply.begin(), reply.end(), 0U) & 0xFFU, 0U);
    }
}

TEST(ReplyBuilder, KeepsFieldsOutsideTheReplyAway) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 4, 2, 2);
    test::AddValue(definition, "ACROSS", 1, 16);
    test::AddValue(definition, "FAR", 0xFFFFFFFF, 32);
    test::AddBit(definition, "FARBIT", 0xFFFFFFFE, 1, 1);
    test::AddSend(definition, "SHORT", {2}, 4, 9, 2);
    const ReplyBuilder builder(definition, 1);
    EXPECT_EQ(builder.Build(0, 20), (Bytes{1, 0x56, 0, 0}));
    EXPECT_EQ(builder.Build(1, 20).size(), 4U);
}

TEST(ReplyBuilder, LeavesTheDefinitionAsItIs) {
    ADXDefinition definition;
    test::AddSend(definition, "POLL", {1}, 1);
    auto& value = test::AddValue(definition, "V", 0, 8);
    const std::uint8_t byte = 77;
    definition.UpdateValues(PacketView(&byte, 1), definition.GetObject(kTypeSendCommand, 0)->GetIdHash());
    const ReplyBuilder builder(definition, 1);
    builder.Build(0, 30);
    EXPECT_EQ(value.Compute(definition, nullptr), 77);
}

TEST(ReplyBuilder, LeavesOutCommandsWithoutBytesAndWithoutReply) {
    ADXDefinition definition;
    test::AddSend(definition, "LISTEN", {}, 10);
    test::AddSend(definition, "MUTE", {8, 9}, 4).flags = 0;
    test::AddSend(definition, "NOTHING", {8, 10}, 0);
    const ReplyBuilder builder(definition, 1);
    ASSERT_EQ(builder.Commands().size(), 2U);
    EXPECT_FALSE(builder.Commands()[0].answered);
    EXPECT_FALSE(builder.Commands()[1].answered);
    EXPECT_FALSE(builder.HasStream());
}

}  // namespace
}  // namespace corvex
