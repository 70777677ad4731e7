// The texts that tests build are read as they were meant.
#include <gtest/gtest.h>

#include "tests/files/adx/ADXTestHelper.h"
#include "tests/support/AdxText.h"

namespace corvex {
namespace {

TEST(AdxText, IsReadAsItWasBuilt) {
    const std::string text =
        test::AdxText()
            .Header("GO", "LOOP")
            .Send("POLL", 24, {0xF4, 0x57})
            .Silence("QUIET", 20)
            .Trigger("GO", 0x1E)
            .Macro("LOOP", {"POLL", "QUIET"})
            .Value({"RPM", "Engine speed"}, 3, "X*25", test::AdxParent("POLL") + test::AdxText::Alarms("10", "200"))
            .Bit("FAN", 4, test::AdxTag("flags", "0x4"))
            .Dashboard("DASH", {{1, "RPM"}, {2, ""}})
            .List("LIST", {"#Engine", "FAN"});
    ADXDefinition definition;
    EXPECT_EQ(ParseText(text, definition).error, "");
    ExpectLines(definition, {"header connectcmd = object 2",
                             "header monitorcmd = object 3",
                             "header baud = 8192",
                             "0 bytestring = 2: 244 87",
                             "0 replysize = 24",
                             "0 packetsize = 24",
                             "0 flags = 1",
                             "1 silencelen = 20",
                             "1 totaltimeout = 400",
                             "2 triggertype = 30",
                             "3 node command = object 0, object 1",
                             "4 title = Engine speed",
                             "4 packetoffset = 3",
                             "4 parentcmdidhash = " + std::to_string(HashId("POLL", 4)),
                             "4 equation = X*25",
                             "4 flags = 12",
                             "4 alarmlow = 10",
                             "4 alarmhigh = 200",
                             "5 title = FAN",
                             "5 flags = 4",
                             "5 truestring = on",
                             "5 packetoffset = 4",
                             "5 operand = 1",
                             "5 result = 1",
                             "6 gauge gaugetype = 1, 2",
                             "6 gauge item = object 4, none",
                             "6 gauge left = 0, 50",
                             "7 row title = Engine, ",
                             "7 row item = none, object 5",
                             "7 row entrytype = 1, 0"});
}

}  // namespace
}  // namespace corvex
