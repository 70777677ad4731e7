// What the objects of each class start as, and what they write of themselves.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionCompare.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

using test::Contains;
using test::WrittenText;

// One of each class, with an entry where there may be some.
struct OneOfEach {
    OneOfEach() {
        test::Add<ADXValue>(definition, nullptr);
        test::Add<ADXBitmask>(definition, nullptr);
        test::Add<ADXDashboard>(definition, nullptr)->SetEntryCount(1);
        test::Add<ADXMonitor>(definition, nullptr)->SetEntryCount(1);
        test::Add<ADXHistogram>(definition, nullptr);
        test::Add<ADXListView>(definition, nullptr)->SetEntryCount(1);
        test::Add<ADXLookupTable>(definition, nullptr);
        const ADXMacroNode node;
        test::Add<ADXMacro>(definition, nullptr)->AddNode(&node);
        test::Add<ADXCSendCommand>(definition, nullptr);
        test::Add<ADXCListenSilence>(definition, nullptr);
        test::Add<ADXCListenChatter>(definition, nullptr);
        test::Add<ADXC160BaudListen>(definition, nullptr);
        test::Add<ADXCTrigger>(definition, nullptr);
    }
    // Behind what all objects have.
    std::string Members(std::uint32_t index) const {
        const std::string prefix = "object " + std::to_string(index) + " (): ";
        std::string all;
        for (const std::string& line : DescribeDefinition(definition)) {
            if (line.starts_with(prefix)) all += line.substr(prefix.size()) + "; ";
        }
        const std::string common = "idhash = 0; baseflags = 0; title = ; desc = ; ";
        return all.erase(all.find(common), common.size());
    }

    ADXDefinition definition;
};

TEST(ObjectForms, EachClassStartsWithItsDefaults) {
    const char* const expected[] = {
        "type = 4; flags = 0; parentcmdidhash = 0; units = ; packetoffset = 0; sizeinbits = 8; rangelow = 0; "
        "rangehigh = 255; alarmlow = 0; alarmhigh = 255; digcount = 2; outputtype = 3; datatype = 0; unittype = 0; "
        "equation = ; lookupidhash = 0; lookup = none; ",
        "type = 8; flags = 0; parentcmdidhash = 0; truestring = ; falsestring = ; alarmonsetcolor = 255; "
        "alarmonnotsetcolor = 65280; packetoffset = 0; sizeinbits = 8; operand = 0; bitop = 0; result = 0; ",
        "type = 16; flags = 0; entries = 1; gauge flags = 0; gauge gaugetype = 0; gauge top = 0; gauge left = 0; "
        "gauge bottom = 100; gauge right = 100; gauge item = none; gauge itemidhash = 0; ",
        "type = 32; flags = 0; entries = 1; series flags = 0; series linecolor = 0; series axiscolor = 0; "
        "series linewidth = 1; series linetype = 0; series item = none; series itemidhash = 0; ",
        "type = 128; flags = 0; parentcmdidhash = 0; rows = 0; cols = 0; xmin = 0; xmax = 0; ymin = 0; ymax = 0; "
        "historysize = 10; xidhash = 0; yidhash = 0; zidhash = 0; x = none; y = none; z = none; ",
        "type = 256; flags = 0; entries = 1; row flags = 0; row entrytype = 0; row itemidhash = 0; row title = ; "
        "row item = none; row color = 0; ",
        "type = 512; flags = 0; inputtype = 3; outputtype = 3; lookupmode = 0; entries = 0; ",
        "type = 65536; flags = 0; repeatcount = 1; nodes = 1; node command = none; node commandid = ; "
        "node flags = 0; node repeatcount = 1; ",
        "type = 131072; bytestring = 0:; replysize = 0; replytimeout = 200; packetoffset = 0; packetsize = 0; "
        "flags = 0; ",
        "type = 262144; silencelen = 0; totaltimeout = 400; ",
        "type = 524288; listentimeout = 400; bytestring = 0:; flags = 0; ",
        "type = 1048576; flags = 0; packetsize = 0; ",
        "type = 2097152; triggertype = 0; flags = 0; ",
    };
    const OneOfEach objects;
    for (std::uint32_t i = 0; i < 13; ++i)
        EXPECT_EQ(objects.Members(i), expected[i]);
}

TEST(ObjectForms, NoClassWritesWithoutAWriter) {
    const OneOfEach objects;
    for (const auto& object : objects.definition.Objects())
        EXPECT_EQ(object->Write(nullptr), 0) << object->GetType();
}

TEST(ObjectForms, AValueLeavesItsDefaultsOutWhereTheFormatDoes) {
    ADXValue value;
    value.SetId("A");
    value.lookupidhash = 0x1234;  // did not resolve
    EXPECT_EQ(WrittenText(value),
              R"(<ADXVALUE id="A" idhash="0x86F344BB" title=""><packetoffset>0x00</packetoffset>)"
              R"(<range low="0.000000" high="255.000000" /><alarms low="0.000000" high="255.000000" />)"
              R"(<digcount>2</digcount><outputtype>3</outputtype><MATH equation="" /></ADXVALUE>)");
}

TEST(ObjectForms, AValueWritesEverythingInOrder) {
    ADXLookupTable table;
    table.SetId("RPM");
    ADXValue value;
    value.SetId("A");
    value.SetTitle("Speed", 5);
    value.SetDesc("Of the <crank>", 14);
    value.flags = 0xC;
    value.parentcmdidhash = 0xABCD;
    value.SetUnits("deg & min", 9);
    value.packetoffset = 300;
    value.sizeinbits = 16;
    value.rangelow = -40.5F;
    value.rangehigh = 8000.0F;
    value.alarmlow = 0.1F;
    value.alarmhigh = 3.4028235E38F;
    value.digcount = 255;
    value.outputtype = 4294967295U;
    value.datatype = 65535;
    value.unittype = 7;
    value.lookup = &table;
    value.SetEquation("X&y+X", 5);
    test::Link(value, 'y', 0xAB);
    EXPECT_EQ(WrittenText(value),
              R"(<ADXVALUE id="A" idhash="0x86F344BB" title="Speed"><desc>Of the &lt;crank&gt;</desc>)"
              R"(<flags>0x0000000C</flags><parentcmdidhash>0x0000ABCD</parentcmdidhash><units>deg & min</units>)"
              R"(<packetoffset>0x12C</packetoffset><sizeinbits>16</sizeinbits>)"
              R"(<range low="-40.500000" high="8000.000000" />)"
              R"(<alarms low="0.100000" high="340282346638528859811704183484516925440.000000" />)"
              R"(<digcount>255</digcount><outputtype>4294967295</outputtype><datatype>65535</datatype>)"
              R"(<unittype>7</unittype><MATH equation="X&y+X" lookupidhash="0xCD0CD1DB">)"
              R"(<VAR varID="X" type="native" /><VAR varID="y" type="link" linkIDHash="0xAB" />)"
              R"(<VAR varID="X" type="native" /></MATH></ADXVALUE>)");
}

TEST(ObjectForms, AValueCutsItsEquationAt99Characters) {
    const std::string equation = std::string(98, '1') + "234";
    ADXValue value;
    value.SetEquation(equation.c_str(), test::Length(equation.c_str()));
    EXPECT_TRUE(Contains(WrittenText(value), "equation=\"" + std::string(98, '1') + "2\""));
}

TEST(ObjectForms, ABitmaskLeavesOutTextsAndWordsOfZero) {
    ADXBitmask bitmask;
    bitmask.SetId("A");
    EXPECT_EQ(WrittenText(bitmask),
              R"(<ADXBITMASK id="A" idhash="0x86F344BB" title=""><parentcmdidhash>0x00000000</parentcmdidhash>)"
              R"(<ALARMONSET color="0x000000FF" /><ALARMONNOTSET color="0x0000FF00" />)"
              R"(<packetoffset>0x00</packetoffset><bitop>AND</bitop></ADXBITMASK>)");
    bitmask.bitop = 2;  // has no name
    EXPECT_FALSE(Contains(WrittenText(bitmask), "bitop"));
}

TEST(ObjectForms, ABitmaskWritesEverythingInOrder) {
    ADXBitmask bitmask;
    bitmask.SetId("A");
    bitmask.SetDesc("d", 1);
    bitmask.flags = 0xE;
    bitmask.parentcmdidhash = 0x10;
    bitmask.SetTrueString("On & on", 7);
    bitmask.SetFalseString("Off <", 5);
    bitmask.packetoffset = 17;
    bitmask.sizeinbits = 16;
    bitmask.operand = 0x80;
    bitmask.bitop = ADXBitmask::kXor;
    bitmask.result = 0x81;
    EXPECT_EQ(WrittenText(bitmask),
              R"(<ADXBITMASK id="A" idhash="0x86F344BB" title=""><desc>d</desc><flags>0x0000000E</flags>)"
              R"(<parentcmdidhash>0x00000010</parentcmdidhash><truestring>On & on</truestring>)"
              R"(<falsestring>Off <</falsestring><ALARMONSET color="0x000000FF" />)"
              R"(<ALARMONNOTSET color="0x0000FF00" /><packetoffset>0x11</packetoffset><sizeinbits>16</sizeinbits>)"
              R"(<operand>0x00000080</operand><bitop>XOR</bitop><result>0x00000081</result></ADXBITMASK>)");
}

TEST(ObjectForms, ATableWritesNumbersSortedWhateverItsType) {
    ADXLookupTable table;
    table.SetId("A");
    table.AddEntry(20, 200.5F);
    table.AddEntry(-10, 0.1F);
    for (const std::uint32_t type : {0U, 1U, 2U, 3U}) {
        table.SetOutputType(type);
        EXPECT_EQ(WrittenText(table),
                  R"(<ADXLOOKUPTABLE id="A" idhash="0x86F344BB" title=""><inputtype>3</inputtype><outputtype>)" +
                      std::to_string(type) + R"(</outputtype><lookupmode>0</lookupmode><entrycount>2</entrycount>)" +
                      R"(<tableentry input="-10.000000" output="0.100000" />)" +
                      R"(<tableentry input="20.000000" output="200.500000" /></ADXLOOKUPTABLE>)");
    }
}

TEST(ObjectForms, ATableWritesTextsUnescaped) {
    ADXLookupTable table;
    table.SetId("A");
    table.SetDesc("d", 1);
    table.flags = 8;
    table.inputtype = 1;
    table.SetOutputType(ADXLookupTable::kText);
    table.AddEntryText(1, "P & N", 5);
    EXPECT_EQ(WrittenText(table),
              R"(<ADXLOOKUPTABLE id="A" idhash="0x86F344BB" title=""><desc>d</desc><flags>0x00000008</flags>)"
              R"(<inputtype>1</inputtype><outputtype>5</outputtype><lookupmode>1</lookupmode>)"
              R"(<entrycount>1</entrycount><tableentry input="1.000000" output="P & N" /></ADXLOOKUPTABLE>)");
}

TEST(ObjectForms, AListWritesItsRows) {
    ADXListView list;
    list.SetId("A");
    list.SetTitle("All", 3);
    list.SetDesc("d", 1);
    list.flags = 1;
    list.SetEntryCount(2);
    ADXLVENTRY& heading = *list.GetEntry(0);
    heading.entrytype = ADXLVENTRY::kHeadingRow;
    heading.flags = 1;
    heading.title.Set("Fuel & air", 10);
    heading.color = 0xFF;
    list.GetEntry(1)->itemidhash = 0x1234;
    EXPECT_EQ(WrittenText(list),
              R"(<ADXLISTVIEW id="A" idhash="0x86F344BB" title="All"><desc>d</desc><flags>0x00000001</flags>)"
              R"(<entrycount>2</entrycount><ADXLVENTRY entrytype="1" flags="0x00000001" title="Fuel &amp; air" )"
              R"(color="000000FF" /><ADXLVENTRY entrytype="0" itemidhash="0x00001234" /></ADXLISTVIEW>)");
}

TEST(ObjectForms, AListWritesAtMost256CharactersOfATitle) {
    ADXListView list;
    list.SetEntryCount(1);
    list.GetEntry(0)->title.Set((std::string(255, '<') + "&cut").c_str(), 259);
    EXPECT_EQ(test::Count(WrittenText(list), "&lt;"), 255u);
    EXPECT_TRUE(Contains(WrittenText(list), "&lt;&amp;\" />"));
}

TEST(ObjectForms, ADashboardWritesItsGaugesAndNoLinkThatLeadsNowhere) {
    ADXBitmask item;
    item.SetId("RPM");
    ADXDashboard dash;
    dash.SetId("A");
    dash.flags = 0x20;
    dash.SetEntryCount(2);
    *dash.GetEntry(0) = {4, 2, 20, 10, 40, 30, &item, 0};
    dash.GetEntry(1)->itemidhash = 0x99;
    EXPECT_EQ(WrittenText(dash),
              R"(<ADXDASHBOARD id="A" idhash="0x86F344BB" title=""><flags>0x00000020</flags><entrycount>2</entrycount>)"
              R"(<ADXDGENTRY gaugetype="2" flags="0x00000004" itemidhash="0xCD0CD1DB" left="10" top="20" right="30" )"
              R"(bottom="40" /><ADXDGENTRY gaugetype="0" left="0" top="0" right="100" bottom="100" /></ADXDASHBOARD>)");
}

TEST(ObjectForms, AMonitorWritesItsSeriesWithTheLowHalfOfTheirFlags) {
    ADXBitmask item;
    item.SetId("RPM");
    ADXMonitor monitor;
    monitor.SetId("A");
    monitor.flags = 1;
    monitor.SetEntryCount(2);
    *monitor.GetEntry(0) = {0x12345, 0xFF, 0x12FFFFFF, 3, 2, &item, 0};
    monitor.GetEntry(1)->flags = 0x10000;
    EXPECT_EQ(WrittenText(monitor),
              R"(<ADXMONITOR id="A" idhash="0x86F344BB" title=""><flags>0x00000001</flags><entrycount>2</entrycount>)"
              R"(<ADXMONSERIES flags="0x2345" linewidth="3" linetype="2" linecolor="0x0000FF" axiscolor="0x12FFFFFF" )"
              R"(itemidhash="0xCD0CD1DB" /><ADXMONSERIES linecolor="0x000000" axiscolor="0x000000" /></ADXMONITOR>)");
}

TEST(ObjectForms, AHistogramWritesItselfWithSizesAsTheyWereGiven) {
    ADXValue x, z;
    x.SetId("A");
    z.SetId("RPM");
    ADXHistogram histogram;
    histogram.SetId("A");
    histogram.SetDesc("d", 1);
    histogram.flags = 1;
    histogram.parentcmdidhash = 2;
    histogram.yidhash = 0x55;  // did not resolve
    histogram.SetRows(5000);
    histogram.SetCols(0xFFFFFFFF);
    histogram.SetXMax(100);
    histogram.SetYMin(-10);
    histogram.SetYMax(10);
    histogram.SetX(&x);
    histogram.SetZ(&z);
    histogram.SetHistorySize(20);
    EXPECT_EQ(WrittenText(histogram),
              R"(<ADXHISTOGRAM id="A" idhash="0x86F344BB" title=""><desc>d</desc><flags>0x00000001</flags>)"
              R"(<parentcmdidhash>0x00000002</parentcmdidhash><rows>5000</rows><cols>4294967295</cols>)"
              R"(<xmin>0.000000</xmin><xmax>100.000000</xmax><ymin>-10.000000</ymin><ymax>10.000000</ymax>)"
              R"(<historysize>20</historysize><xidhash>0x86F344BB</xidhash><zidhash>0xCD0CD1DB</zidhash>)"
              R"(</ADXHISTOGRAM>)");
}

TEST(ObjectForms, BaseAttributesAreEscapedAndInOrder) {
    ADXCListenSilence object;
    object.SetId("A&B");
    object.SetTitle("<\"Quiet\">", 9);
    object.SetDesc("don't", 5);
    object.SetBaseFlags(0x2A);
    char start[80];
    std::snprintf(start, sizeof start, R"(<ADXCLISTENSILENCE id="A&amp;B" idhash="0x%.8X")", object.GetIdHash());
    const std::string text = WrittenText(object);
    EXPECT_TRUE(text.starts_with(start)) << text;
    EXPECT_TRUE(Contains(text, R"(" title="&lt;&quot;Quiet&quot;&gt;" baseflags="0x0000002A"><desc>don&apos;t</desc>)"))
        << text;
}

TEST(ObjectForms, AllFifteenCharactersOfAnIdAreWritten) {
    ADXCListenSilence object;
    object.SetId("ABCDEFGHIJKLMNO");
    EXPECT_TRUE(Contains(WrittenText(object), " id=\"ABCDEFGHIJKLMNO\" "));
}

TEST(ObjectForms, LongTextsAreWrittenWhole) {
    ADXCListenSilence object;
    const std::string text(3000, '<');
    object.SetTitle(text.c_str(), 3000);
    object.SetDesc(text.c_str(), 3000);
    EXPECT_EQ(test::Count(WrittenText(object), "&lt;"), 6000u);
}

}  // namespace
}  // namespace corvex
