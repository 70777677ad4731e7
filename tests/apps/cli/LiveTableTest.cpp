#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "apps/cli/LiveTable.h"
#include "apps/cli/SampleLines.h"
#include "apps/cli/ScanView.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "export/ItemPattern.h"
#include "session/diagnosis/PolledCommands.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

class LiveTableTest : public testing::Test {
protected:
    template <class T>
    T& Add(const char* id) {
        T* const made = test::Add<T>(definition_, id);
        made->SetTitle(id, test::Length(id));
        return *made;
    }

    LiveTableTest() {
        poll_ = &Add<ADXCSendCommand>("POLL");
        other_ = &Add<ADXCSendCommand>("OTHER");
        poll_->flags = other_->flags = 1;
        speed_ = &Add<ADXValue>("SPEED");
        speed_->SetEquation("X*10", 4);
        speed_->SetUnits("rpm", 3);
        speed_->parentcmdidhash = poll_->GetIdHash();
        speed_->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
        speed_->alarmhigh = 1000.0F;
        speed_->alarmlow = 100.0F;
        bit_ = &Add<ADXBitmask>("BIT");
        bit_->operand = bit_->result = 0x80;
        bit_->flags = ADXBitmask::kAlarmOnSet;
        bit_->parentcmdidhash = other_->GetIdHash();
    }

    ReplyEvent Answer(const ADXObject& command, double t, std::vector<std::uint8_t> packet) {
        ReplyEvent event;
        event.command = &command;
        event.t = t;
        event.sampled = true;
        event.packet = std::move(packet);
        definition_.UpdateValues(event.Packet(), command.GetIdHash());
        return event;
    }

    ADXDefinition definition_;
    ADXCSendCommand *poll_, *other_;
    ADXValue* speed_;
    ADXBitmask* bit_;
};

TEST_F(LiveTableTest, ShowsNothingOfACommandThatHasNotAnswered) {
    LiveTable table(definition_);
    table.Add(Answer(*poll_, 1.0, {50}));
    const auto rows = table.Rows(3.5);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].value, "500.00");
    EXPECT_EQ(rows[0].units, "rpm");
    EXPECT_DOUBLE_EQ(rows[0].age, 2.5);
    EXPECT_EQ(rows[1].value, "-");
    EXPECT_EQ(LiveTable(definition_, "nobody,B?T").Rows(0.0).size(), 1U);
    EXPECT_LT(rows[1].age, 0.0);
}

TEST_F(LiveTableTest, ColoursAlarms) {
    LiveTable table(definition_);
    table.Add(Answer(*poll_, 1.0, {101}));
    EXPECT_TRUE(table.Rows(1.0)[0].alarm);
    EXPECT_EQ(table.Rows(1.0)[0].colour, 0x0000FFU);
    table.Add(Answer(*poll_, 1.0, {9}));
    EXPECT_EQ(table.Rows(1.0)[0].colour, 0x4080FFU);
    // The limits themselves are no alarm.
    table.Add(Answer(*poll_, 1.0, {100}));
    EXPECT_FALSE(table.Rows(1.0)[0].alarm);
    table.Add(Answer(*other_, 1.0, {0x80}));
    EXPECT_TRUE(table.Rows(1.0)[1].alarm);
    EXPECT_EQ(table.Rows(1.0)[1].colour, 255U);
    table.Add(Answer(*other_, 1.0, {0x00}));
    EXPECT_FALSE(table.Rows(1.0)[1].alarm);
}

TEST_F(LiveTableTest, WritesASampleAsALineAndAsJson) {
    EXPECT_EQ(PlainSample(definition_, ItemChoice(definition_, ""), Answer(*poll_, 1.25, {101})),
              "1.250 POLL: SPEED !1010.00 rpm");
    EXPECT_EQ(JsonSample(definition_, ItemChoice(definition_, ""), Answer(*poll_, 1.25, {50})).dump(),
              R"({"t":1.25,"command":"POLL","values":{"SPEED":500.0}})");
    EXPECT_EQ(JsonSample(definition_, ItemChoice(definition_, ""), Answer(*other_, 2.0, {0x80})).dump(),
              R"({"t":2.0,"command":"OTHER","values":{"BIT":true}})");
    speed_->SetEquation("(0-1)#0.5+X", 11);
    EXPECT_EQ(JsonSample(definition_, ItemChoice(definition_, ""), Answer(*poll_, 1.0, {1}))["values"]["SPEED"],
              nullptr);
}

TEST_F(LiveTableTest, LinesTellOfALineThatIsQuietLongerAndLonger) {
    for (const bool live : {true, false}) {
        std::ostringstream out;
        const auto view = MakeScanView({true, false, false, live, "SPEED"}, definition_, "COM1", false, out);
        const ScanSummary summary;
        for (int tenths = 0; tenths < 200; ++tenths) {
            if (tenths == 100) view->OnReply(Answer(*poll_, 10.0, {50}));
            view->OnTick({tenths / 10.0, tenths / 10.0, summary, "silent", ""});
        }
        const std::string answer = "10.000 POLL: SPEED 500.00 rpm\n";
        EXPECT_EQ(out.str(),
                  live ? "3.000 silent\n9.000 silent\n" + answer + "13.000 silent\n19.000 silent\n" : answer);
    }
}

TEST_F(LiveTableTest, FindsPolledCommandsWithinMacrosThatRunThemselves) {
    ADXMacro& inner = Add<ADXMacro>("INNER");
    ADXMacro& outer = Add<ADXMacro>("OUTER");
    ADXMacroNode node;
    for (const ADXObject* command : std::vector<const ADXObject*>{other_, &outer}) {
        node.command = command;
        inner.AddNode(&node);
    }
    for (const ADXObject* command : std::vector<const ADXObject*>{&inner, poll_, other_}) {
        node.command = command;
        outer.AddNode(&node);
    }
    definition_.monitorcmd = &outer;
    EXPECT_EQ(PolledCommands(definition_), (std::vector<const ADXObject*>{other_, poll_}));
    poll_->flags = 0;
    EXPECT_EQ(PolledCommands(definition_), (std::vector<const ADXObject*>{other_}));
}

}  // namespace
}  // namespace corvex
