#include <gtest/gtest.h>

#include <string>

#include "checking/SourceRecord.h"
#include "definition/ADXDefinition.h"
#include "files/adx/ADXParser.h"

namespace corvex {
namespace {

class SourceRecordTest : public ::testing::Test {
protected:
    void Read(const std::string& text) {
        ADXParser parser;
        parser.SetObserver(&record_);
        parser.ParseMemory(text.data(), text.size(), definition_);
    }
    const SourcePart& Object(std::uint32_t n) const { return *record_.Find(*definition_.GetObject(kTypeAny, n)); }

    ADXDefinition definition_;
    SourceRecord record_;
};

TEST_F(SourceRecordTest, KeepsWhatStandsInAnObject) {
    Read("<ADXVALUE Id='A' id='B'>\n<units>V</units><unit/><UNITS>A</UNITS></ADXVALUE><ADXMACRO/>");
    EXPECT_EQ(record_.ObjectCount(), 2U);
    const SourcePart& value = Object(0);
    EXPECT_TRUE(value.start.Is("adxvalue"));
    EXPECT_EQ(value.start.Attribute("ID"), "A") << "the first counts, as for the reader";
    EXPECT_EQ(value.start.Attribute("title"), "");
    EXPECT_EQ(value.Last("units")->text, "A");
    EXPECT_EQ(value.Last("units")->line, 2U);
    EXPECT_EQ(value.Count("units"), 2U);
    EXPECT_EQ(value.Last("unit"), nullptr) << "it means nothing";
    EXPECT_EQ(value.Count("unit"), 1U);
    EXPECT_TRUE(Object(1).children.empty());
    EXPECT_EQ(record_.Find(ADXObject()), nullptr);
}

TEST_F(SourceRecordTest, CountsRowsOfAllKindsAndThoseBeforeAnElement) {
    Read("<ADXLISTVIEW><ADXLVENTRY/><ADXDGENTRY/><ADXLVENTRY/><entrycount>2</entrycount><ADXLVENTRY/></ADXLISTVIEW>");
    const SourcePart& view = Object(0);
    EXPECT_EQ(view.Rows(), 4U);
    EXPECT_EQ(view.CountBefore("ADXLVENTRY", "entrycount"), 2U);
    EXPECT_EQ(view.CountBefore("ADXLVENTRY", "desc"), 3U);
}

TEST_F(SourceRecordTest, TellsTheHeaderFromWhatStandsAroundIt) {
    Read(
        "<what/><ADXFORMAT version='1'/>\n<ADXHEADER><baud>160</baud></ADXHEADER><baud>8192</baud>"
        "<ADXVALUE/><desc>d</desc><ADXFORMAT/>");
    const SourcePart& header = record_.Header();
    EXPECT_EQ(header.start.line, 2U);
    EXPECT_EQ(header.Last("baud")->text, "160");
    std::string ignored;
    for (const SourceElement& child : header.children) {
        if (child.ignored) ignored += child.name + ' ';
    }
    EXPECT_EQ(ignored, "what baud desc ");
}

TEST_F(SourceRecordTest, TheHeaderEndsWhereAnObjectBegins) {
    Read("<ADXHEADER><baud>160</baud><ADXVALUE><desc>d</desc></ADXVALUE>");
    ASSERT_EQ(record_.Header().Count("desc"), 0U);
    EXPECT_EQ(Object(0).Last("desc")->text, "d");
}

}  // namespace
}  // namespace corvex
