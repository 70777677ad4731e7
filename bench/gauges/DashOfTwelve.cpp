#include "bench/gauges/DashOfTwelve.h"

#include <cstdio>

#include "definition/ADXObject.h"

namespace corvex::bench {

namespace {

constexpr std::size_t kLamps = 4, kColumns = 4;

template <class... Values>
std::string Printed(const char* format, Values... values) {
    char text[600];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

unsigned Hash(const std::string& id) {
    return HashId(id.data(), static_cast<std::uint32_t>(id.size()));
}

std::string ItemId(std::size_t place) {
    return Printed("ITEM%u", static_cast<unsigned>(place));
}

std::string Header() {
    return Printed(
        "<ADXFORMAT version=\"0.50\" />\n<ADXHEADER><flags>0x00</flags><baud>8192</baud></ADXHEADER>\n"
        "<ADXCSENDCOMMAND id=\"%s\" idhash=\"0x%08X\" title=\"Poll\" flags=\"0x00000001\">"
        "<bytestring size=\"0x1\">0xA0 </bytestring><replysize>%u</replysize><replytimeout>20</replytimeout>"
        "<packetoffset>0</packetoffset><packetsize>%u</packetsize></ADXCSENDCOMMAND>\n",
        kPollId, Hash(kPollId), kPollReply, kPollReply);
}

std::string Value(std::size_t place) {
    const std::string id = ItemId(place);
    return Printed(
        "<ADXVALUE id=\"%s\" idhash=\"0x%08X\" title=\"Oil Pressure %u\"><flags>0x00000004</flags>"
        "<parentcmdidhash>0x%08X</parentcmdidhash><units>kPa</units><packetoffset>%u</packetoffset>"
        "<range low=\"0\" high=\"7000\" /><alarms low=\"0\" high=\"6200\" /><digcount>1</digcount>"
        "<outputtype>3</outputtype><MATH equation=\"X*27.4\"><VAR varID=\"X\" type=\"native\" /></MATH></ADXVALUE>\n",
        id.c_str(), Hash(id), static_cast<unsigned>(place), Hash(kPollId), static_cast<unsigned>(place));
}

std::string Bit(std::size_t place) {
    const std::string id = ItemId(place);
    return Printed(
        "<ADXBITMASK id=\"%s\" idhash=\"0x%08X\" title=\"Check Lamp %u\"><parentcmdidhash>0x%08X</parentcmdidhash>"
        "<truestring>on</truestring><falsestring>off</falsestring><packetoffset>%u</packetoffset>"
        "<operand>0x00000001</operand><bitop>AND</bitop><result>0x00000001</result></ADXBITMASK>\n",
        id.c_str(), Hash(id), static_cast<unsigned>(place), Hash(kPollId), static_cast<unsigned>(place));
}

std::string Gauge(std::size_t place, int type) {
    const auto column = static_cast<unsigned>(place % kColumns), row = static_cast<unsigned>(place / kColumns);
    return Printed(
        "<ADXDGENTRY gaugetype=\"%d\" itemidhash=\"0x%08X\" left=\"%u\" top=\"%u\" right=\"%u\" bottom=\"%u\" />\n",
        type, Hash(ItemId(place)), 25 * column, 33 * row, 25 * column + 25, 33 * row + 33);
}

}  // namespace

std::string DashOfTwelve(std::size_t dials) {
    std::string text = Header(), gauges;
    for (std::size_t place = 0; place < kGaugesOnDash; ++place) {
        const bool lamp = place >= kGaugesOnDash - kLamps;
        text.append(lamp ? Bit(place) : Value(place));
        gauges.append(Gauge(place, lamp ? 2 : place < dials ? 0 : 1));
    }
    text.append(Printed("<ADXDASHBOARD id=\"DASH\" title=\"Twelve\"><entrycount>%u</entrycount>\n",
                        static_cast<unsigned>(kGaugesOnDash)));
    return text.append(gauges).append("</ADXDASHBOARD>\n");
}

std::string HistogramOfSixteen() {
    const unsigned x = Hash(ItemId(0)), y = Hash(ItemId(1));
    return Header() + Value(0) + Value(1) +
           Printed(
               "<ADXHISTOGRAM id=\"MAP\" title=\"Map\"><rows>16</rows><cols>16</cols><xmax>7000</xmax>"
               "<ymax>7000</ymax><xidhash>0x%08X</xidhash><yidhash>0x%08X</yidhash><zidhash>0x%08X</zidhash>"
               "</ADXHISTOGRAM>\n",
               x, y, x);
}

}  // namespace corvex::bench
