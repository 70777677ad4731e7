#include <gtest/gtest.h>

#include "apps/cli/TableLines.h"
#include "export/text/TextFormat.h"

namespace corvex {
namespace {

LiveRow Row(const std::string& title, const std::string& value) {
    return {title, value, "rpm", false, 0, 0.5};
}

TEST(TableLinesTest, AlignsDigitsToTheRight) {
    const auto lines = TableLines({Row("Speed", "7"), Row("Engine", "1234")}, 60, 10, false);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], "Speed           7 rpm 0.5s");
    EXPECT_EQ(lines[1], "Engine       1234 rpm 0.5s");
}

TEST(TableLinesTest, DrawsAnAlarmInItsColour) {
    LiveRow row = Row("Speed", "7");
    row.alarm = true;
    row.colour = 0x4080FF;
    EXPECT_EQ(TableLines({row}, 60, 10, true)[0], "Speed \x1b[38;2;255;128;64m!        7\x1b[39m rpm 0.5s");
    EXPECT_EQ(TableLines({row}, 60, 10, false)[0], "Speed !        7 rpm 0.5s");
}

TEST(TableLinesTest, SpreadsRowsOverColumnsWhereTheyFitAndCountsTheRest) {
    const std::vector<LiveRow> rows(10, Row("Speed", "7"));
    EXPECT_EQ(TableLines(rows, 60, 5, false).size(), 5U);
    EXPECT_EQ(DisplayWidth(TableLines(rows, 60, 5, false)[0]), 25U + 3 + 25);
    const auto lines = TableLines(rows, 30, 4, false);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[3], "7 more; enlarge the window");
}

TEST(TableLinesTest, ShortensTitlesInTheMiddleAndWhereTheyAreLong) {
    const std::vector<LiveRow> rows{Row("Oxygen Sensor Left", "1"), Row("Oxygen Sensor Right", "2"), Row("Gear", "3"),
                                    Row("Fuel Pressure Rail", "4")};
    const std::string blanks(10, ' ');
    const auto lines = TableLines(rows, 70, 2, false);
    EXPECT_EQ(lines[0], "Oxygen~r Left" + blanks + "1 rpm 0.5s   Gear" + blanks + blanks + "3 rpm 0.5s");
    EXPECT_EQ(lines[1], "Oxygen~ Right" + blanks + "2 rpm 0.5s   Fuel Pr~e Rail" + blanks + "4 rpm 0.5s");
    EXPECT_EQ(TableLines({Row("Oxygen Sensor Left", "1")}, 24, 2, false)[0], "Oxygen~ Left  1 rpm 0.5s");
    EXPECT_EQ(TableLines({Row("\xC2\xB0\xC2\xB0\xC2\xB0\xC2\xB0\xC2\xB0\xC2\xB0 C", "1")}, 17, 2, false)[0],
              "\xC2\xB0\xC2\xB0~ C  1 rpm 0.5s");
}

TEST(TableLinesTest, NeverLeavesTheScreen) {
    std::vector<LiveRow> rows(40, Row("A title that is rather long, as they go", "12345678901234567890"));
    for (std::size_t width = 1; width < 200; ++width) {
        for (std::size_t height = 1; height < 60; height += 7) {
            const auto lines = TableLines(rows, width, height, false);
            ASSERT_LE(lines.size(), height) << width;
            for (const std::string& line : lines)
                ASSERT_LE(DisplayWidth(line), width) << line;
        }
    }
}

TEST(TableLinesTest, ShowsAgesInFourColumns) {
    const std::pair<double, const char*> cases[] = {{-1.0, "-"},   {0.0, "0.0s"}, {9.94, "9.9s"},
                                                    {9.96, "10s"}, {100.0, "2m"}, {7200.0, "2h"}};
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(AgeText(seconds), text);
}

}  // namespace
}  // namespace corvex
