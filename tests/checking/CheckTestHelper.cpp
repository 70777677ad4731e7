#include "tests/checking/CheckTestHelper.h"

#include "checking/DefinitionChecker.h"
#include "definition/ADXDefinition.h"
#include "files/adx/ADXParser.h"

namespace corvex {

std::string DefinitionWith(const std::string& objects) {
    return "<ADXFORMAT version=\"0.50\" />\n"
           "<ADXHEADER><flags>0x00</flags><baud>8192</baud><monitorcmd>MONITOR</monitorcmd></ADXHEADER>\n"
           "<ADXCSENDCOMMAND id=\"POLL\" title=\"Poll\" flags=\"0x1\">"
           "<bytestring size=\"0x2\">0xF4 0x57 </bytestring><replysize>24</replysize><replytimeout>200</replytimeout>"
           "<packetoffset>3</packetoffset><packetsize>20</packetsize></ADXCSENDCOMMAND>\n"
           "<ADXMACRO id=\"MONITOR\" title=\"Monitor\"><NODE commandID=\"POLL\" /></ADXMACRO>\n" +
           objects;
}

std::string ValueText(const std::string& id, const std::string& equation, const std::string& more) {
    return "<ADXVALUE id=\"" + id + "\" title=\"" + id + " title\"><packetoffset>0x00</packetoffset>" + more +
           "<MATH equation=\"" + equation + "\" /></ADXVALUE>\n";
}

std::string Object(const std::string& element, const std::string& id, const std::string& inside) {
    return "<" + element + " id='" + id + "' title='" + id + "'>" + inside + "</" + element + ">";
}

std::vector<Finding> CheckText(const std::string& text) {
    ADXDefinition definition;
    SourceRecord source;
    ADXParser parser;
    parser.SetObserver(&source);
    if (parser.ParseMemory(text.data(), text.size(), definition) == 0)
        return {{Severity::kError, "load", {}, parser.GetError(), 0, false}};
    return CheckDefinition(definition, &source);
}

std::vector<Finding> OfKind(const std::vector<Finding>& findings, const std::string& kind) {
    std::vector<Finding> chosen;
    for (const Finding& finding : findings) {
        if (finding.kind == kind) chosen.push_back(finding);
    }
    return chosen;
}

std::string Lines(const std::vector<Finding>& findings) {
    std::string lines;
    for (const Finding& finding : findings)
        lines += std::string(SeverityName(finding.severity)) + ' ' + finding.kind + ' ' + finding.object + ": " +
                 finding.text + '\n';
    return lines;
}

}  // namespace corvex
