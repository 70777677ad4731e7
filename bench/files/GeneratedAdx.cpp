#include "bench/files/GeneratedAdx.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>

namespace corvex {

namespace {

__attribute__((format(printf, 2, 3))) void Add(std::string& out, const char* format, ...) {
    char line[512];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    out += line;
    out += "\r\n";
}

constexpr const char* kQuantities[] = {"Coolant temperature", "Throttle position", "Manifold pressure", "Spark advance",
                                       "Block learn",         "Battery voltage",   "Air per cylinder",  "Idle steps"};
constexpr const char* kEquations[] = {"(X*0.75)-40", "X*0.0048828125", "(X/255)*100", "X", "((X-40)*1.8)+32"};
constexpr const char* kUnits[] = {"C", "V", "%", "kPa", "steps"};

void AddCommand(std::string& out, unsigned n) {
    Add(out, R"(<ADXCSENDCOMMAND id="CMD%u" idhash="0x%.8X" title="Read block %u">)", n, n * 2654435761U, n);
    Add(out, R"(    <bytestring size="0x5">0xF4 0x57 0x01 0x%.2X 0xB4 </bytestring>)", n & 0xFF);
    Add(out, "    <replysize>67</replysize>");
    Add(out, "    <replytimeout>200</replytimeout>");
    Add(out, "    <packetoffset>3</packetoffset>");
    Add(out, "    <packetsize>63</packetsize>");
    Add(out, "</ADXCSENDCOMMAND>");
}

void AddValue(std::string& out, unsigned n) {
    Add(out, R"(<ADXVALUE id="VAL%u" idhash="0x%.8X" title="%s %u">)", n, n * 2246822519U, kQuantities[n % 8], n);
    Add(out, "    <desc>As the controller uses it, filtered &amp; limited, not as the sensor gives it.</desc>");
    Add(out, "    <flags>0x00000001</flags>");
    Add(out, "    <units>%s</units>", kUnits[n % 5]);
    Add(out, "    <packetoffset>0x%.2X</packetoffset>", n % 63);
    if (n % 3 == 0) Add(out, "    <sizeinbits>16</sizeinbits>");
    Add(out, R"(    <range low="%f" high="%f" />)", -40.0, 100.0 + n % 156);
    Add(out, R"(    <alarms low="%f" high="%f" />)", -30.0, 90.0 + n % 156);
    Add(out, "    <digcount>%u</digcount>", n % 4);
    Add(out, "    <outputtype>3</outputtype>");
    Add(out, R"(    <MATH equation="%s">)", kEquations[n % 5]);
    Add(out, R"(        <VAR varID="X" type="native" />)");
    Add(out, "    </MATH>");
    Add(out, "</ADXVALUE>");
}

void AddBitmask(std::string& out, unsigned n) {
    Add(out, R"(<ADXBITMASK id="BIT%u" idhash="0x%.8X" title="Status bit %u">)", n, n * 3266489917U, n);
    Add(out, "    <parentcmdidhash>0x%.8X</parentcmdidhash>", n);
    Add(out, "    <truestring>Closed loop</truestring>");
    Add(out, "    <falsestring>Open loop</falsestring>");
    Add(out, R"(    <ALARMONSET color="0x000000FF" />)");
    Add(out, R"(    <ALARMONNOTSET color="0x00FFFFFF" />)");
    Add(out, "    <packetoffset>0x%.2X</packetoffset>", n % 63);
    Add(out, "    <operand>0x%.8X</operand>", 1U << n % 8);
    Add(out, "    <bitop>AND</bitop>");
    Add(out, "    <result>0x%.8X</result>", 1U << n % 8);
    Add(out, "</ADXBITMASK>");
}

void AddTable(std::string& out, unsigned n) {
    Add(out, R"(<ADXLOOKUPTABLE id="TAB%u" idhash="0x%.8X" title="Sensor curve %u">)", n, n * 668265263U, n);
    Add(out, "    <inputtype>3</inputtype>");
    Add(out, "    <outputtype>3</outputtype>");
    Add(out, "    <lookupmode>1</lookupmode>");
    Add(out, "    <entrycount>24</entrycount>");
    for (unsigned row = 0; row < 24; ++row) {
        Add(out, R"(    <tableentry input="%f" output="%f" />)", row * 10.0, 150.0 - row * 7.25);
    }
    Add(out, "</ADXLOOKUPTABLE>");
}

}  // namespace

std::string GenerateAdx(std::size_t size) {
    std::string out;
    out.reserve(size + 4096);
    Add(out, R"(<ADXFORMAT version="0.50" />)");
    Add(out, "\r\n<!-- Written 06/14/2004 12:30:00 -->");
    Add(out, "<ADXHEADER>");
    Add(out, "    <flags>0x01</flags>");
    Add(out, "    <author>Generated</author>");
    Add(out, "    <baud>8192</baud>");
    Add(out, "    <monitorcmd>CMD0</monitorcmd>");
    Add(out, "</ADXHEADER>");
    for (unsigned n = 0; out.size() < size; ++n) {
        if (n % 50 == 0) AddCommand(out, n);
        AddValue(out, n);
        if (n % 2 == 0) AddBitmask(out, n);
        if (n % 20 == 0) AddTable(out, n);
    }
    return out;
}

}  // namespace corvex
