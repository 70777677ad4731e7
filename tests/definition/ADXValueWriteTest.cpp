// What a value writes of itself.
#include <gtest/gtest.h>

#include <string>

#include "definition/ADXLookupTable.h"
#include "tests/support/DefinitionTestHelper.h"
#include "tests/support/WrittenText.h"

namespace corvex {
namespace {

TEST(ADXValueWrite, LeavesDefaultsOutWhereTheFormatDoes) {
    ADXValue value;
    value.SetId("A");
    EXPECT_EQ(test::WrittenText(value),
              "<ADXVALUE id=\"A\" idhash=\"0x86F344BB\" title=\"\">\n"
              "    <packetoffset>0x00</packetoffset>\n"
              "    <range low=\"0.000000\" high=\"255.000000\" />\n"
              "    <alarms low=\"0.000000\" high=\"255.000000\" />\n"
              "    <digcount>2</digcount>\n"
              "    <outputtype>3</outputtype>\n"
              "    <MATH equation=\"\" />\n"
              "</ADXVALUE>\n");
}

TEST(ADXValueWrite, WritesEverythingInOrder) {
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
    value.SetEquation("X+y+X", 5);
    test::Link(value, 'y', 0xAB);
    EXPECT_EQ(test::WrittenText(value),
              "<ADXVALUE id=\"A\" idhash=\"0x86F344BB\" title=\"Speed\">\n"
              "    <desc>Of the &lt;crank&gt;</desc>\n"
              "    <flags>0x0000000C</flags>\n"
              "    <parentcmdidhash>0x0000ABCD</parentcmdidhash>\n"
              "    <units>deg & min</units>\n"
              "    <packetoffset>0x12C</packetoffset>\n"
              "    <sizeinbits>16</sizeinbits>\n"
              "    <range low=\"-40.500000\" high=\"8000.000000\" />\n"
              "    <alarms low=\"0.100000\" high=\"340282346638528859811704183484516925440.000000\" />\n"
              "    <digcount>255</digcount>\n"
              "    <outputtype>4294967295</outputtype>\n"
              "    <datatype>65535</datatype>\n"
              "    <unittype>7</unittype>\n"
              "    <MATH equation=\"X+y+X\" lookupidhash=\"0xCD0CD1DB\">\n"
              "        <VAR varID=\"X\" type=\"native\" />\n"
              "        <VAR varID=\"y\" type=\"link\" linkIDHash=\"0xAB\" />\n"
              "        <VAR varID=\"X\" type=\"native\" />\n"
              "    </MATH>\n"
              "</ADXVALUE>\n");
}

TEST(ADXValueWrite, DropsALookupThatDidNotResolve) {
    ADXValue value;
    value.lookupidhash = 0x1234;
    EXPECT_EQ(test::WrittenText(value).find("lookupidhash"), std::string::npos);
}

TEST(ADXValueWrite, CutsAnEquationAt99Characters) {
    const std::string equation = std::string(98, '1') + "234";
    ADXValue value;
    value.SetEquation(equation.c_str(), test::Length(equation.c_str()));
    EXPECT_NE(test::WrittenText(value).find("equation=\"" + std::string(98, '1') + "2\""), std::string::npos);
}

TEST(ADXValueWrite, NeedsAWriter) {
    EXPECT_EQ(ADXValue().Write(nullptr), 0);
}

}  // namespace
}  // namespace corvex
