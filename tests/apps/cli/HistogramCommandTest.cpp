#include <gtest/gtest.h>

#include "apps/cli/HistogramText.h"
#include "apps/cli/LogOptions.h"
#include "definition/ADXHistogram.h"
#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/AdxText.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

std::string At(int offset, const std::string& id) {
    return ValueText(id, "X", test::AdxTag("units", "u" + id) + test::AdxTag("packetoffset", std::to_string(offset)));
}

// Keys 0, 50 and 100 across, 0 and 2.5 down.
std::string HistogramOf(const std::string& id, const std::string& command, const std::string& more = "") {
    return "<ADXHISTOGRAM id=\"" + id + "\" title=\"" + id + " title\">" + test::AdxTag("parentcmdidhash", command) +
           "<rows>2</rows><cols>3</cols><xmin>0</xmin><xmax>100</xmax><ymin>0</ymin><ymax>2.5</ymax>" +
           test::AdxTag("historysize", "10") + test::AdxTag("xidhash", test::AdxHash("X")) +
           test::AdxTag("yidhash", test::AdxHash("Y")) + test::AdxTag("zidhash", test::AdxHash("Z")) + more +
           "</ADXHISTOGRAM>\n";
}

class HistogramCommandTest : public ::testing::Test {
protected:
    ToolResult Run(const LogBytes& log, Words more) {
        const TempFile definition(StreamDefinition(At(0, "X") + At(1, "Y") + At(2, "Z") + histograms));
        const LogTempFile file(log);
        more.insert(more.begin(), {"histogram", "-d", definition.Path(), file.Path()});
        return RunInside(more);
    }

    static LogBytes FourPolls() {
        LogBytes log = BeginLog({kPollHash, kStreamHash});
        return log.Record(0, 0, PollReply({0, 0, 5}))
            .Record(0, 100, PollReply({100, 0, 7}))
            .Record(0, 200, PollReply({100, 0, 10}))
            .Record(0, 300, PollReply({50, 3, 1}));
    }

    std::string histograms = HistogramOf("MAP", "0xA6607299");
};

TEST_F(HistogramCommandTest, ShowsTheLastSamplesAsATable) {
    const ToolResult result = Run(FourPolls(), {});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
              "MAP title - X title vs Y title vs Z title\n"
              "Most Recent Sample (uZ); 4 samples, 0 outside the grid\n"
              "x: X title (uX), across; y: Y title (uY), down\n"
              "           0     50    100\n"
              "    0      5            10\n"
              "2.500             1\n");
}

TEST_F(HistogramCommandTest, KnowsEveryView) {
    const auto cells = [&](const char* view) {
        const std::string out = Run(FourPolls(), {"--csv", "--view", view}).out;
        return out.substr(out.find('\n') + 1);
    };
    for (const auto& [view, expected] : {std::pair{"last", "0,5,,10\n2.500,,1,\n"},
                                         {"average", "0,5,,8.500\n2.500,,1,\n"},
                                         {"deviation", "0,0,,2.121\n2.500,,0,\n"},
                                         {"count", "0,1,,2\n2.500,,1,\n"},
                                         {"average-total", "0,5,,8.500\n2.500,,1,\n"},
                                         {"count-total", "0,1,,2\n2.500,,1,\n"},
                                         {"maximum", "0,5,,10\n2.500,,1,\n"}})
        EXPECT_EQ(cells(view), expected) << view;
    // A lone positive sample is a highest one and no lowest one.
    EXPECT_TRUE(cells("minimum").starts_with("0,340282346638528859811704183484516925440,"));
    EXPECT_NE(cells("range"), cells("maximum"));
    for (const char* name : kHistogramViews)
        EXPECT_NE(FindHistogramView(name), nullptr) << name;
}

TEST_F(HistogramCommandTest, ShowsAllHistogramsUnlessOneIsChosen) {
    histograms += HistogramOf("OTHER", "0x00000000");
    const ToolResult all = Run(FourPolls(), {"--csv", "--view", "last", "--view", "count"});
    EXPECT_EQ(all.out,
              "MAP title - X title vs Y title vs Z title,Most Recent Sample\n,0,50,100\n0,5,,10\n2.500,,1,\n"
              "MAP title - X title vs Y title vs Z title,History Sample Count\n,0,50,100\n0,1,,2\n2.500,,1,\n"
              "OTHER title - X title vs Y title vs Z title,Most Recent Sample\n,0,50,100\n0,5,,10\n2.500,,1,\n"
              "OTHER title - X title vs Y title vs Z title,History Sample Count\n,0,50,100\n0,1,,2\n2.500,,1,\n");
    EXPECT_EQ(Run(FourPolls(), {"--csv", "--id", "OTHER"}).out, ",0,50,100\n0,5,,10\n2.500,,1,\n");
}

TEST_F(HistogramCommandTest, RefusesAnIdThatNoHistogramHas) {
    const ToolResult result = Run(FourPolls(), {"--id", "X"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(Has(result.err, ": no histogram has the id \"X\"; corvex-cli list "));
    histograms.clear();
    EXPECT_TRUE(Has(Run(FourPolls(), {}).err, ": no histogram; corvex-cli list "));
}

TEST_F(HistogramCommandTest, CountsTheSamplesOfItsCommandAndThoseThatFellIntoNoCell) {
    const auto ofOther = HistogramOf("MAP", "0xFE43497D"), small = HistogramOf("MAP", "0xA6607299", "<rows>0</rows>");
    for (const auto& [text, told] :
         {std::pair{ofOther, "; 0 samples, 0 outside the grid\n"}, {small, "; 4 samples, 4 outside the grid\n"}}) {
        histograms = text;
        EXPECT_TRUE(Has(Run(FourPolls(), {}).out, told));
    }
}

// As on a live line: the sample of a slow stream is taken before its packet is kept.
TEST_F(HistogramCommandTest, TakesThePacketBeforeTheLastOfASlowStream) {
    histograms = HistogramOf("MAP", "0xFE43497D");
    LogBytes log = BeginLog({kStreamHash});
    const auto packet = [](std::uint8_t x, std::uint8_t z) {
        Bytes bytes(24, 0);
        bytes[0] = x;
        bytes[2] = z;
        return bytes;
    };
    log.Record(0, 0, packet(50, 11)).Record(0, 1200, packet(100, 12)).Record(0, 2400, packet(50, 13));
    EXPECT_EQ(Run(log, {"--csv"}).out, ",0,50,100\n0,0,11,12\n2.500,,,\n");
}

TEST_F(HistogramCommandTest, ShowsWhatADamagedLogHasBrought) {
    LogBytes log = FourPolls();
    log.Record(9, 400, PollReply({1}));
    const ToolResult result = Run(log, {"--csv"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, ",0,50,100\n0,5,,10\n2.500,,1,\n");
    EXPECT_TRUE(Has(result.err, ": a record of an unknown item"));
}

}  // namespace
}  // namespace corvex
