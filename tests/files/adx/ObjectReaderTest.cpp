#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "files/adx/ObjectReader.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

TEST(HeaderReader, ReadsAllItsElements) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXHEADER><flags>0x01</flags><userversion>1.2</userversion><author>Me &amp; you</author><desc>About</desc>"
        "<baud>4294967295</baud><connectcmd>C</connectcmd><monitorcmd>M</monitorcmd><disconnectcmd>D</disconnectcmd>"
        "</ADXHEADER><ADXCTRIGGER id='D'/><ADXCTRIGGER id='M'/><ADXCTRIGGER id='C'/>",
        definition);
    EXPECT_EQ(definition.flags, 1u);
    EXPECT_EQ(definition.baud, 4294967295u);
    EXPECT_STREQ(definition.UserVersion().CStr(), "1.2");
    EXPECT_STREQ(definition.Author().CStr(), "Me & you");
    EXPECT_STREQ(definition.Desc().CStr(), "About");
    EXPECT_STREQ(definition.connectcmd->Id(), "C");
    EXPECT_STREQ(definition.monitorcmd->Id(), "M");
    EXPECT_STREQ(definition.disconnectcmd->Id(), "D");
}

TEST(ValueReader, AValueOfNothingHasItsDefaults) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE></ADXVALUE>", definition);
    const auto& value = Get<ADXValue>(definition);
    EXPECT_EQ(value.GetIdHash(), 0u);
    EXPECT_EQ(value.sizeinbits, 8u);
    EXPECT_EQ(value.outputtype, 3u);
    EXPECT_EQ(value.digcount, 2);
    EXPECT_EQ(value.rangehigh, 255.0F);
    EXPECT_EQ(value.alarmhigh, 255.0F);
}

TEST(ValueReader, ReadsAllItsElements) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXVALUE id='V' title='T &lt;' baseflags='0x12'><desc>D &gt;</desc><flags>0x0000000F</flags>"
        "<parentcmdidhash>0xCD0CD1DB</parentcmdidhash><units>rpm</units><packetoffset>10</packetoffset>"
        "<sizeinbits>16</sizeinbits><range low='-1.5' high='2.5'/><alarms low='-3' high='4e2'/>"
        "<digcount>5</digcount><outputtype>2</outputtype><datatype>65535</datatype><unittype>70000</unittype>"
        "<MATH equation='A+B' lookupidhash='0x5'><VAR varID='A' type='link' linkIDHash='0xABC'/>"
        "<VAR varID='B' type='native'/></MATH></ADXVALUE>",
        definition);
    const auto& value = Get<ADXValue>(definition);
    EXPECT_STREQ(value.Title(), "T <");
    EXPECT_STREQ(value.Desc(), "D >");
    EXPECT_EQ(value.GetBaseFlags(), 0x12u);
    EXPECT_EQ(value.flags, 0xFu);
    EXPECT_EQ(value.parentcmdidhash, 0xCD0CD1DBu);
    EXPECT_STREQ(value.Units(), "rpm");
    EXPECT_EQ(value.packetoffset, 16u);
    EXPECT_EQ(value.sizeinbits, 16u);
    EXPECT_EQ(value.rangelow, -1.5F);
    EXPECT_EQ(value.rangehigh, 2.5F);
    EXPECT_EQ(value.alarmlow, -3.0F);
    EXPECT_EQ(value.alarmhigh, 400.0F);
    EXPECT_EQ(value.digcount, 5);
    EXPECT_EQ(value.outputtype, 2u);
    EXPECT_EQ(value.datatype, 65535);
    EXPECT_EQ(value.unittype, 70000 - 65536) << "the low half counts";
    EXPECT_EQ(value.lookupidhash, 5u);
    EXPECT_EQ(value.lookup, nullptr);
    ADXVar var;
    ASSERT_EQ(value.GetVar(0, &var), 1);
    EXPECT_EQ(var.varid, 'A');
    EXPECT_EQ(var.type, 1u);
    EXPECT_EQ(var.linkidhash, 0xABCu);
    ASSERT_EQ(value.GetVar(1, &var), 1);
    EXPECT_EQ(var.varid, 'B');
    EXPECT_EQ(var.type, 0u);
}

TEST(ValueReader, ARangeKeepsTheEndThatIsNotGiven) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE><range low='3'/><alarms high='4'/></ADXVALUE>", definition);
    EXPECT_EQ(Get<ADXValue>(definition).rangelow, 3.0F);
    EXPECT_EQ(Get<ADXValue>(definition).rangehigh, 255.0F);
    EXPECT_EQ(Get<ADXValue>(definition).alarmlow, 0.0F);
    EXPECT_EQ(Get<ADXValue>(definition).alarmhigh, 4.0F);
}

TEST(ValueReader, AVariableBeforeItsEquationIsLost) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE><VAR varID='X' type='link' linkIDHash='1'/><MATH equation='X'/></ADXVALUE>", definition);
    ADXVar var;
    ASSERT_EQ(Get<ADXValue>(definition).GetVar(0, &var), 1);
    EXPECT_EQ(var.type, 0u);
    EXPECT_EQ(var.linkidhash, 0u);
}

TEST(ValueReader, TheKindOfAVariableMindsItsCase) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE><MATH equation='X'><VAR varID='X' type='LINK' linkIDHash='1'/></MATH></ADXVALUE>",
                 definition);
    ADXVar var;
    ASSERT_EQ(Get<ADXValue>(definition).GetVar(0, &var), 1);
    EXPECT_EQ(var.type, 0u);
}

TEST(ValueReader, VariablesWithoutALetterAreIgnored) {
    ADXDefinition definition;
    ParseObjects("<ADXVALUE><MATH equation='X'><VAR/><VAR varID=''/><VAR varID='Y' type='link'/></MATH></ADXVALUE>",
                 definition);
    EXPECT_EQ(Get<ADXValue>(definition).GetVarCount(), 1u);
}

TEST(BitmaskReader, ReadsAllItsElements) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXBITMASK id='B' baseflags='3'><flags>0xC</flags><parentcmdidhash>7</parentcmdidhash>"
        "<truestring>On</truestring><falsestring>Off</falsestring><ALARMONSET color='0x00FF00FF'/>"
        "<ALARMONNOTSET color='0x123456'/><packetoffset>0x1F</packetoffset><sizeinbits>32</sizeinbits>"
        "<operand>0x80</operand><bitop>XOR</bitop><result>0x7F</result></ADXBITMASK>",
        definition);
    const auto& bitmask = Get<ADXBitmask>(definition);
    EXPECT_EQ(bitmask.GetBaseFlags(), 3u);
    EXPECT_EQ(bitmask.flags, 0xCu);
    EXPECT_EQ(bitmask.parentcmdidhash, 7u);
    EXPECT_STREQ(bitmask.TrueString(), "On");
    EXPECT_STREQ(bitmask.FalseString(), "Off");
    EXPECT_EQ(bitmask.alarmonsetcolor, 0xFF00FFu);
    EXPECT_EQ(bitmask.alarmonnotsetcolor, 0x123456u);
    EXPECT_EQ(bitmask.packetoffset, 0x1Fu);
    EXPECT_EQ(bitmask.sizeinbits, 32u);
    EXPECT_EQ(bitmask.operand, 0x80u);
    EXPECT_EQ(bitmask.bitop, 1u);
    EXPECT_EQ(bitmask.result, 0x7Fu);
}

TEST(BitmaskReader, TheOperationMindsItsCase) {
    ADXDefinition definition;
    ParseObjects("<ADXBITMASK><bitop>XOR</bitop><bitop>and</bitop></ADXBITMASK>", definition);
    EXPECT_EQ(Get<ADXBitmask>(definition).bitop, 1u);
}

TEST(LookupTableReader, ReadsRowsOfNumbersAndKeepsThemSorted) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXLOOKUPTABLE id='T' baseflags='3'><flags>9</flags><inputtype>4294967295</inputtype>"
        "<outputtype>3</outputtype><lookupmode>2</lookupmode><entrycount>77</entrycount>"
        "<tableentry input='20' output='2.5'/><tableentry input='10' output='1'/><tableentry input='20' output='3'/>"
        "<tableentry/></ADXLOOKUPTABLE>",
        definition);
    const auto& table = Get<ADXLookupTable>(definition);
    EXPECT_EQ(table.GetBaseFlags(), 3u);
    EXPECT_EQ(table.flags, 9u);
    EXPECT_EQ(table.inputtype, 4294967295u);
    EXPECT_EQ(table.GetLookupMode(), 2u);
    ASSERT_EQ(table.GetEntryCount(), 3u);
    float input = -1.0F;
    float output = -1.0F;
    table.GetEntry(0, &input, &output);
    EXPECT_EQ(input, 0.0F);
    EXPECT_EQ(output, 0.0F);
    table.GetEntry(2, &input, &output);
    EXPECT_EQ(input, 20.0F);
    EXPECT_EQ(output, 3.0F);
}

TEST(LookupTableReader, ReadsRowsOfTextAndRefusesEmptyOnes) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXLOOKUPTABLE><outputtype>5</outputtype><tableentry input='1' output='one'/><tableentry input='2'/>"
        "<tableentry input='3' output=''/></ADXLOOKUPTABLE>",
        definition);
    const auto& table = Get<ADXLookupTable>(definition);
    ASSERT_EQ(table.GetEntryCount(), 1u);
    EXPECT_EQ(table.GetLookupMode(), 1u) << "texts can't be interpolated";
    char text[16] = "";
    table.GetEntryText(0, nullptr, text, sizeof text);
    EXPECT_STREQ(text, "one");
}

TEST(LookupTableReader, RowsAreReadAsTheOutputTypeSaysAtTheirPlace) {
    ADXDefinition definition;
    ParseObjects("<ADXLOOKUPTABLE><tableentry input='1' output='7'/><outputtype>5</outputtype></ADXLOOKUPTABLE>",
                 definition);
    char text[16] = "";
    Get<ADXLookupTable>(definition).GetEntryText(0, nullptr, text, sizeof text);
    EXPECT_STREQ(text, "7.000000");
}

TEST(ListViewReader, RowsFillTheSlotsByPosition) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXLISTVIEW id='L' baseflags='3'><flags>8</flags><entrycount>3</entrycount>"
        "<ADXLVENTRY entrytype='1' flags='1' title='Head &quot;' color='00FF0000'/>"
        "<ADXLVENTRY entrytype='0' itemidhash='0x86F344BB'/></ADXLISTVIEW><ADXVALUE id='A'/>",
        definition);
    const auto& view = Get<ADXListView>(definition);
    EXPECT_EQ(view.GetBaseFlags(), 3u);
    EXPECT_EQ(view.flags, 8u);
    ASSERT_EQ(view.GetEntryCount(), 3u);
    EXPECT_EQ(view.GetEntry(0)->entrytype, 1u);
    EXPECT_EQ(view.GetEntry(0)->flags, 1u);
    EXPECT_STREQ(view.GetEntry(0)->title.CStr(), "Head \"");
    EXPECT_EQ(view.GetEntry(0)->color, 0xFF0000u);
    EXPECT_EQ(view.GetEntry(1)->item, definition.GetObject(kTypeAny, 1));
    EXPECT_FALSE(view.GetEntry(2)->title.IsSet());
}

TEST(ListViewReader, EachViewCountsItsRowsFromZero) {
    ADXDefinition definition;
    const std::string view = "<ADXLISTVIEW><entrycount>1</entrycount><ADXLVENTRY color='7'/></ADXLISTVIEW>";
    ParseObjects(view + view, definition);
    EXPECT_EQ(Get<ADXListView>(definition, 1).GetEntry(0)->color, 7u);
}

TEST(ListViewReader, AHostileEntryCountIsIgnored) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXLISTVIEW><entrycount>4294967295</entrycount><ADXLVENTRY/></ADXLISTVIEW>"
        "<ADXLISTVIEW><entrycount>256</entrycount></ADXLISTVIEW><ADXLISTVIEW><entrycount>-1</entrycount></ADXLISTVIEW>",
        definition);
    for (std::uint32_t i = 0; i < 3; ++i)
        EXPECT_EQ(Get<ADXListView>(definition, i).GetEntryCount(), 0u);
}

TEST(DashboardReader, ReadsItsGauges) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXDASHBOARD baseflags='3'><flags>8</flags><entrycount>9</entrycount>"
        "<ADXDGENTRY gaugetype='2' flags='0x5' itemidhash='0x86F344BB' left='1' top='2' right='3' bottom='4'/>"
        "<ADXDGENTRY/></ADXDASHBOARD><ADXVALUE id='A'/>",
        definition);
    const auto& dashboard = Get<ADXDashboard>(definition);
    EXPECT_EQ(dashboard.GetBaseFlags(), 3u);
    EXPECT_EQ(dashboard.flags, 8u);
    ASSERT_EQ(dashboard.GetEntryCount(), 2u);
    const ADXDGENTRY& gauge = *dashboard.GetEntry(0);
    EXPECT_EQ(gauge.gaugetype, 2u);
    EXPECT_EQ(gauge.flags, 5u);
    EXPECT_EQ(gauge.left, 1);
    EXPECT_EQ(gauge.top, 2);
    EXPECT_EQ(gauge.right, 3);
    EXPECT_EQ(gauge.bottom, 4);
    EXPECT_EQ(gauge.item, definition.GetObject(kTypeAny, 1));
    EXPECT_EQ(dashboard.GetEntry(1)->right, 100) << "a new gauge covers the page";
    EXPECT_EQ(dashboard.GetEntry(1)->item, nullptr);
}

TEST(DashboardReader, KeepsTheFirst255Gauges) {
    ADXDefinition definition;
    std::string gauges;
    for (int i = 0; i < 300; ++i)
        gauges += "<ADXDGENTRY gaugetype='" + std::to_string(i) + "'/>";
    ParseObjects("<ADXDASHBOARD>" + gauges + "</ADXDASHBOARD>", definition);
    ASSERT_EQ(Get<ADXDashboard>(definition).GetEntryCount(), 255u);
    EXPECT_EQ(Get<ADXDashboard>(definition).GetEntry(254)->gaugetype, 254u);
}

TEST(MonitorReader, ReadsItsSeries) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXMONITOR baseflags='3'><flags>8</flags><entrycount>0</entrycount>"
        "<ADXMONSERIES flags='0x0001' linewidth='3' linetype='2' linecolor='0x0000FF' axiscolor='0xFF0000' "
        "itemidhash='0x86F344BB'/><ADXMONSERIES itemidhash='0x86F344BB'/></ADXMONITOR><ADXVALUE id='A'/>",
        definition);
    const auto& monitor = Get<ADXMonitor>(definition);
    EXPECT_EQ(monitor.GetBaseFlags(), 3u);
    EXPECT_EQ(monitor.flags, 8u);
    ASSERT_EQ(monitor.GetEntryCount(), 2u);
    const ADXMONSERIES& series = *monitor.GetEntry(0);
    EXPECT_EQ(series.flags, 1u);
    EXPECT_EQ(series.linewidth, 3);
    EXPECT_EQ(series.linetype, 2);
    EXPECT_EQ(series.linecolor, 0xFFu);
    EXPECT_EQ(series.axiscolor, 0xFF0000u);
    EXPECT_EQ(series.item, definition.GetObject(kTypeAny, 1));
    EXPECT_EQ(monitor.GetEntry(1)->linewidth, 1);
}

TEST(HistogramReader, ReadsAllItsElements) {
    ADXDefinition definition;
    ParseObjects(
        "<ADXHISTOGRAM id='H' baseflags='3'><flags>8</flags><parentcmdidhash>0xAB</parentcmdidhash><rows>4</rows>"
        "<cols>5</cols><xmin>0</xmin><xmax>100</xmax><ymin>-1.5</ymin><ymax>1.5</ymax><historysize>20</historysize>"
        "<xidhash>0x86F344BB</xidhash><yidhash>0x1</yidhash><zidhash>0x86F344BB</zidhash></ADXHISTOGRAM>"
        "<ADXVALUE id='A'/>",
        definition);
    const auto& histogram = Get<ADXHistogram>(definition);
    EXPECT_EQ(histogram.GetBaseFlags(), 3u);
    EXPECT_EQ(histogram.flags, 8u);
    EXPECT_EQ(histogram.parentcmdidhash, 0xABu);
    EXPECT_EQ(histogram.GetRows(), 4u);
    EXPECT_EQ(histogram.GetCols(), 5u);
    EXPECT_EQ(histogram.GetXMax(), 100.0F);
    EXPECT_EQ(histogram.GetYMin(), -1.5F);
    EXPECT_EQ(histogram.GetHistorySize(), 20u);
    EXPECT_EQ(histogram.XTable().GetEntryCount(), 5u);
    EXPECT_EQ(histogram.GetX(), definition.GetObject(kTypeAny, 1));
    EXPECT_EQ(histogram.GetY(), nullptr);
    EXPECT_EQ(histogram.GetZ(), definition.GetObject(kTypeAny, 1));
}

}  // namespace
}  // namespace corvex
