#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <memory>

#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"
#include "files/adx/DefinitionSave.h"
#include "tests/files/adx/ADXTestHelper.h"

namespace corvex {
namespace {

constexpr LocalTime kTime = {2031, 2, 6, 3, 4, 5, 6, 789};

void FillHeader(ADXDefinition& definition) {
    definition.flags = 1;
    definition.SetUserVersion("1.2", 3);
    definition.SetAuthor("Me", 2);
    definition.SetDesc("About", 5);
    definition.connectcmd = definition.FindById("M");
    definition.monitorcmd = definition.FindById("S");
    definition.disconnectcmd = definition.FindById("Q");
}

void FillCommands(ADXDefinition& definition) {
    const std::uint8_t bytes[] = {0xF4, 0x57, 0x01};
    auto& send = Add<ADXCSendCommand>(definition, "S");
    send.SetTitle("Poll <1>", 8);
    send.SetDesc("A & B", 5);
    send.SetBaseFlags(0x12);
    send.SetBytes(bytes, 3);
    send.flags = 1;
    send.replysize = 63;
    send.packetoffset = 10;
    send.packetsize = 4294967295;
    auto& silence = Add<ADXCListenSilence>(definition, "Q");
    silence.silencelen = 10;
    auto& chatter = Add<ADXCListenChatter>(definition, "C");
    chatter.SetBytes(bytes, 2);
    chatter.flags = 2;
    Add<ADXC160BaudListen>(definition, "L").packetsize = 20;
    Add<ADXCTrigger>(definition, "T").triggertype = 0x1E;
    auto& macro = Add<ADXMacro>(definition, "M");
    macro.flags = 4;
    macro.repeatcount = 2;
    ADXMacroNode node;
    node.command = definition.FindById("S");
    node.flags = 1;
    node.repeatcount = 3;
    macro.AddNode(&node);
    node.command = nullptr;
    macro.AddNode(&node);
}

void FillItems(ADXDefinition& definition) {
    auto& table = Add<ADXLookupTable>(definition, "TAB");
    table.AddEntry(10.0F, 100.5F);
    auto& text = Add<ADXLookupTable>(definition, "TXT");
    text.SetOutputType(5);
    text.AddEntryText(1.0F, "one", 3);
    auto& value = Add<ADXValue>(definition, "RPM");
    value.SetUnits("rpm", 3);
    value.flags = 4;
    value.parentcmdidhash = definition.FindById("S")->GetIdHash();
    value.packetoffset = 10;
    value.sizeinbits = 16;
    value.rangelow = -1.5F;
    value.rangehigh = 7000.0F;
    value.datatype = 7;
    value.unittype = 9;
    value.SetEquation("X*Y", 3);
    value.SetVar({1, 'Y', 0xABC});
    value.lookup = &table;
    auto& bitmask = Add<ADXBitmask>(definition, "B");
    bitmask.SetTrueString("On", 2);
    bitmask.SetFalseString("Off", 3);
    bitmask.operand = bitmask.result = 0x80;
    bitmask.bitop = 1;
}

void FillViews(ADXDefinition& definition) {
    ADXObject* rpm = definition.FindById("RPM");
    auto& view = Add<ADXListView>(definition, "LV");
    view.SetEntryCount(2);
    view.GetEntry(0)->entrytype = 1;
    view.GetEntry(0)->flags = 1;
    view.GetEntry(0)->title.Set("Head \"1\"", 8);
    view.GetEntry(0)->color = 0xFF;
    view.GetEntry(1)->SetItem(rpm);
    ADXDGENTRY gauge;
    gauge.gaugetype = 1;
    gauge.item = rpm;
    Add<ADXDashboard>(definition, "D").AddEntry(&gauge);
    ADXMONSERIES series;
    series.flags = 0x10002;
    series.linewidth = 2;
    series.linetype = 1;
    series.linecolor = 0xFF;
    series.item = rpm;
    Add<ADXMonitor>(definition, "MON").AddEntry(&series);
    auto& histogram = Add<ADXHistogram>(definition, "H");
    histogram.SetRows(2);
    histogram.SetCols(3);
    histogram.SetXMax(100.0F);
    histogram.SetX(rpm);
}

constexpr const char* kHeaderAndCommands =
    "<ADXHEADER>\n"
    "    <flags>0x01</flags>\n"
    "    <objectcount>14</objectcount>\n"
    "    <userversion>1.2</userversion>\n"
    "    <author>Me</author>\n"
    "    <desc>About</desc>\n"
    "    <baud>8192</baud>\n"
    "    <connectcmd>M</connectcmd>\n"
    "    <monitorcmd>S</monitorcmd>\n"
    "    <disconnectcmd>Q</disconnectcmd>\n"
    "</ADXHEADER>\n"
    "<ADXCSENDCOMMAND id=\"S\" idhash=\"@S\" title=\"Poll &lt;1&gt;\" baseflags=\"0x00000012\" flags=\"0x00000001\">\n"
    "    <desc>A &amp; B</desc>\n"
    "    <bytestring size=\"0x3\">0xF4 0x57 0x01 </bytestring>\n"
    "    <replysize>63</replysize>\n"
    "    <replytimeout>200</replytimeout>\n"
    "    <packetoffset>10</packetoffset>\n"
    "    <packetsize>4294967295</packetsize>\n"
    "</ADXCSENDCOMMAND>\n"
    "<ADXCLISTENSILENCE id=\"Q\" idhash=\"@Q\" title=\"\">\n"
    "    <silencelen>10</silencelen>\n"
    "    <totaltimeout>400</totaltimeout>\n"
    "</ADXCLISTENSILENCE>\n"
    "<ADXCLISTENCHATTER id=\"C\" idhash=\"@C\" title=\"\" flags=\"0x00000002\">\n"
    "    <listentimeout>400</listentimeout>\n"
    "    <bytestring size=\"2\">0xF4 0x57 </bytestring>\n"
    "</ADXCLISTENCHATTER>\n"
    "<ADXCLISTEN160BAUD id=\"L\" idhash=\"@L\" title=\"\">\n"
    "    <packetsize>20</packetsize>\n"
    "</ADXCLISTEN160BAUD>\n"
    "<ADXCTRIGGER id=\"T\" idhash=\"@T\" title=\"\">\n"
    "    <triggertype>0x0000001E</triggertype>\n"
    "</ADXCTRIGGER>\n"
    "<ADXMACRO id=\"M\" idhash=\"@M\" title=\"\" repeatcount=\"2\" flags=\"0x00000004\">\n"
    "    <NODE flags=\"0x00000001\" commandID=\"S\" repeatcount=\"3\" />\n"
    "</ADXMACRO>\n";

constexpr const char* kItems =
    "<ADXLOOKUPTABLE id=\"TAB\" idhash=\"@TAB\" title=\"\">\n"
    "    <inputtype>3</inputtype>\n"
    "    <outputtype>3</outputtype>\n"
    "    <lookupmode>0</lookupmode>\n"
    "    <entrycount>1</entrycount>\n"
    "    <tableentry input=\"10.000000\" output=\"100.500000\" />\n"
    "</ADXLOOKUPTABLE>\n"
    "<ADXLOOKUPTABLE id=\"TXT\" idhash=\"@TXT\" title=\"\">\n"
    "    <inputtype>3</inputtype>\n"
    "    <outputtype>5</outputtype>\n"
    "    <lookupmode>1</lookupmode>\n"
    "    <entrycount>1</entrycount>\n"
    "    <tableentry input=\"1.000000\" output=\"one\" />\n"
    "</ADXLOOKUPTABLE>\n"
    "<ADXVALUE id=\"RPM\" idhash=\"@RPM\" title=\"\">\n"
    "    <flags>0x00000004</flags>\n"
    "    <parentcmdidhash>@S</parentcmdidhash>\n"
    "    <units>rpm</units>\n"
    "    <packetoffset>0x0A</packetoffset>\n"
    "    <sizeinbits>16</sizeinbits>\n"
    "    <range low=\"-1.500000\" high=\"7000.000000\" />\n"
    "    <alarms low=\"0.000000\" high=\"255.000000\" />\n"
    "    <digcount>2</digcount>\n"
    "    <outputtype>3</outputtype>\n"
    "    <datatype>7</datatype>\n"
    "    <unittype>9</unittype>\n"
    "    <MATH equation=\"X*Y\" lookupidhash=\"@TAB\">\n"
    "        <VAR varID=\"X\" type=\"native\" />\n"
    "        <VAR varID=\"Y\" type=\"link\" linkIDHash=\"0xABC\" />\n"
    "    </MATH>\n"
    "</ADXVALUE>\n"
    "<ADXBITMASK id=\"B\" idhash=\"@B\" title=\"\">\n"
    "    <parentcmdidhash>0x00000000</parentcmdidhash>\n"
    "    <truestring>On</truestring>\n"
    "    <falsestring>Off</falsestring>\n"
    "    <ALARMONSET color=\"0x000000FF\" />\n"
    "    <ALARMONNOTSET color=\"0x0000FF00\" />\n"
    "    <packetoffset>0x00</packetoffset>\n"
    "    <operand>0x00000080</operand>\n"
    "    <bitop>XOR</bitop>\n"
    "    <result>0x00000080</result>\n"
    "</ADXBITMASK>\n";

constexpr const char* kViews =
    "<ADXLISTVIEW id=\"LV\" idhash=\"@LV\" title=\"\">\n"
    "    <entrycount>2</entrycount>\n"
    "    <ADXLVENTRY entrytype=\"1\" flags=\"0x00000001\" title=\"Head &quot;1&quot;\" color=\"000000FF\" />\n"
    "    <ADXLVENTRY entrytype=\"0\" itemidhash=\"@RPM\" />\n"
    "</ADXLISTVIEW>\n"
    "<ADXDASHBOARD id=\"D\" idhash=\"@D\" title=\"\">\n"
    "    <entrycount>1</entrycount>\n"
    "    <ADXDGENTRY gaugetype=\"1\" itemidhash=\"@RPM\" left=\"0\" top=\"0\" right=\"100\" bottom=\"100\" />\n"
    "</ADXDASHBOARD>\n"
    "<ADXMONITOR id=\"MON\" idhash=\"@MON\" title=\"\">\n"
    "    <entrycount>1</entrycount>\n"
    "    <ADXMONSERIES flags=\"0x0002\" linewidth=\"2\" linetype=\"1\" linecolor=\"0x0000FF\" axiscolor=\"0x000000\" "
    "itemidhash=\"@RPM\" />\n"
    "</ADXMONITOR>\n"
    "<ADXHISTOGRAM id=\"H\" idhash=\"@H\" title=\"\">\n"
    "    <rows>2</rows>\n"
    "    <cols>3</cols>\n"
    "    <xmin>0.000000</xmin>\n"
    "    <xmax>100.000000</xmax>\n"
    "    <ymin>0.000000</ymin>\n"
    "    <ymax>0.000000</ymax>\n"
    "    <historysize>10</historysize>\n"
    "    <xidhash>@RPM</xidhash>\n"
    "</ADXHISTOGRAM>\n";

// Puts CR LF for the line ends and hashes for the names behind an at sign.
std::string Expand(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') {
            out += "\r\n";
        } else if (text[i] == '@') {
            const std::size_t end = text.find_first_of("\"<", i);
            const std::string id = text.substr(i + 1, end - i - 1);
            char hash[16];
            std::snprintf(hash, sizeof hash, "0x%08X", HashId(id.data(), static_cast<std::uint32_t>(id.size())));
            out += hash;
            i = end - 1;
        } else {
            out += text[i];
        }
    }
    return out;
}

void FillWhole(ADXDefinition& definition) {
    FillCommands(definition);
    FillItems(definition);
    FillViews(definition);
    FillHeader(definition);
}

std::string WholeText() {
    return Expand(std::string(kHeaderAndCommands) + kItems + kViews);
}

TEST(DefinitionSave, WritesTheWholeFileLetterForLetter) {
    ADXDefinition definition;
    FillWhole(definition);
    const TempFile file;
    XMLWriter writer;
    ASSERT_EQ(writer.Open(file.Path()), 1);
    WriteDefinition(definition, writer, kTime);
    writer.Close();
    ASSERT_FALSE(writer.Failed());
    EXPECT_EQ(file.Read(),
              "<ADXFORMAT version=\"0.50\" />\r\n\r\n<!-- Written 02/03/2031 04:05:06 -->\r\n" + WholeText());
}

TEST(DefinitionSave, SavesTheSameWithTheTimeOfDay) {
    ADXDefinition definition;
    FillWhole(definition);
    EXPECT_EQ(SaveTextWithoutTime(definition), "<ADXFORMAT version=\"0.50\" />\r\n\r\n" + WholeText());
}

TEST(DefinitionSave, AnEmptyDefinitionHasRootAndHeader) {
    ADXDefinition definition;
    EXPECT_EQ(SaveTextWithoutTime(definition),
              "<ADXFORMAT version=\"0.50\" />\r\n\r\n<ADXHEADER>\r\n    <flags>0x00</flags>\r\n"
              "    <objectcount>0</objectcount>\r\n    <baud>8192</baud>\r\n</ADXHEADER>\r\n");
}

TEST(DefinitionSave, ACommandWithoutBytesHasAnEmptyByteString) {
    ADXDefinition definition;
    Add<ADXCSendCommand>(definition, "S");
    EXPECT_NE(SaveText(definition).find("    <bytestring size=\"0x0\"></bytestring>\r\n"), std::string::npos);
}

TEST(DefinitionSave, AnEightBitValueHasNoSize) {
    ADXDefinition definition;
    Add<ADXValue>(definition, "V");
    EXPECT_EQ(SaveText(definition).find("sizeinbits"), std::string::npos);
}

TEST(DefinitionSave, TextsOfTheHeaderAreWrittenWhole) {
    ADXDefinition definition;
    const std::string author(200, 'a');
    const std::string desc(1023, 'd');
    definition.SetAuthor(author.data(), 200);
    definition.SetDesc(desc.data(), 1023);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(loaded.Author().CStr(), author);
    EXPECT_EQ(loaded.Desc().CStr(), desc);
}

TEST(DefinitionSave, HeaderIdsAreWrittenAsStored) {
    ADXDefinition definition;
    definition.connectcmd = &Add<ADXCTrigger>(definition, "ABCDEFGHIJKLMNO");
    EXPECT_NE(SaveText(definition).find("<connectcmd>ABCDEFGHIJKLMNO</connectcmd>"), std::string::npos);
    ADXDefinition loaded;
    SaveAndLoad(definition, loaded);
    EXPECT_EQ(loaded.connectcmd, loaded.GetObject(kTypeAny, 0)) << "14 characters find an object of 15";
}

TEST(DefinitionSave, ProgressCountsTheObjects) {
    ADXDefinition definition;
    Add<ADXCTrigger>(definition, "A");
    Add<ADXCTrigger>(definition, "B");
    const TempFile file;
    ProgressRecorder progress;
    EXPECT_EQ(definition.Save(file.Path(), &progress), 1);
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"range 2", "step", "step", "position 0"}));
}

TEST(DefinitionSave, AFileThatCannotBeOpenedIsAFailure) {
    ADXDefinition definition;
    EXPECT_EQ(definition.Save("/no/such/folder/file.adx"), 0);
}

TEST(DefinitionSave, AFullDiskIsAFailure) {
    // Where there is no such device there is no disk to fill at will either; the folder then fails to open.
    const char* path = std::filesystem::exists("/dev/full") ? "/dev/full" : "/no/such/folder/file.adx";
    ADXDefinition definition;
    EXPECT_EQ(definition.Save(path), 0) << "what fits the buffer fails at the end";
    for (int i = 0; i < 1000; ++i)
        Add<ADXValue>(definition, "V");
    EXPECT_EQ(definition.Save(path), 0);
}

}  // namespace
}  // namespace corvex
