#include "tests/program/driver/SmallDefinition.h"

#include <array>
#include <cstdio>

#include "tests/program/driver/LogFiles.h"

namespace corvex::test {

namespace {

std::string Start(const std::string& element, const std::string& id, const std::string& title) {
    return "<" + element + " id=\"" + id + "\" idhash=\"" + HashText(id) + "\" title=\"" + title + "\"";
}

std::string Hex(std::uint32_t word) {
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "0x%08X", static_cast<unsigned>(word));
    return text.data();
}

std::string SendCommand(const std::string& id, const std::string& request) {
    std::string text = Start("ADXCSENDCOMMAND", id, id);
    text.append(" flags=\"0x00000001\"><bytestring size=\"0x2\">").append(request).append("</bytestring><replysize>");
    text.append(std::to_string(SmallDefinition::kReplySize)).append("</replysize><replytimeout>200</replytimeout>");
    text.append("<packetoffset>0</packetoffset><packetsize>").append(std::to_string(SmallDefinition::kReplySize));
    return text.append("</packetsize></ADXCSENDCOMMAND>\n");
}

std::string Parent(const std::string& command) {
    std::string text = "<parentcmdidhash>";
    text.append(command.empty() ? "0x00000000" : HashText(command));
    return text.append("</parentcmdidhash>");
}

}  // namespace

std::vector<std::uint8_t> SmallDefinition::Reply(std::vector<std::uint8_t> bytes) {
    bytes.resize(kReplySize);
    return bytes;
}

SmallDefinition::SmallDefinition(const std::vector<std::string>& connect, const std::vector<std::string>& monitor) {
    Add("<ADXFORMAT version=\"0.50\" />");
    Add("<ADXHEADER><flags>0x00</flags><objectcount>0</objectcount><baud>8192</baud><connectcmd>CONNECT</connectcmd>"
        "<monitorcmd>MONITOR</monitorcmd></ADXHEADER>");
    Add(SendCommand("POLL", "0xA0 0x01 "));
    Add(SendCommand("OTHER", "0xB0 0x02 "));
    Add(Start("ADXCLISTENSILENCE", "PAUSE", "Pause") +
        "><silencelen>20</silencelen><totaltimeout>400</totaltimeout></ADXCLISTENSILENCE>");
    Macro("CONNECT", connect);
    Macro("MONITOR", monitor);
}

SmallDefinition& SmallDefinition::Add(const std::string& text) {
    text_.append(text).append("\r\n");
    return *this;
}

SmallDefinition& SmallDefinition::Macro(const std::string& id, const std::vector<std::string>& commands) {
    std::string text = Start("ADXMACRO", id, id) + " repeatcount=\"1\">";
    for (const std::string& command : commands)
        text.append("<NODE commandID=\"").append(command).append("\" repeatcount=\"1\" />");
    return Add(text + "</ADXMACRO>");
}

SmallDefinition& SmallDefinition::Trigger(const std::string& id, std::uint32_t bits) {
    return Add(Start("ADXCTRIGGER", id, id) + "><triggertype>" + Hex(bits) + "</triggertype></ADXCTRIGGER>");
}

SmallDefinition& SmallDefinition::Value(const std::string& id, const std::string& title, const std::string& command,
                                        int offset, const std::string& equation) {
    std::string text = Start("ADXVALUE", id, title) + "><flags>0x0000000C</flags>" + Parent(command);
    text.append("<units>unit</units><packetoffset>").append(Hex(static_cast<std::uint32_t>(offset)));
    text.append("</packetoffset><range low=\"0.000000\" high=\"255.000000\" />");
    text.append("<alarms low=\"10.000000\" high=\"200.000000\" /><digcount>1</digcount><outputtype>3</outputtype>");
    text.append("<MATH equation=\"").append(equation).append("\"><VAR varID=\"X\" type=\"native\" /></MATH>");
    return Add(text + "</ADXVALUE>");
}

SmallDefinition& SmallDefinition::Bit(const std::string& id, const std::string& title, const std::string& command,
                                      int offset) {
    std::string text = Start("ADXBITMASK", id, title) + "><flags>0x00000004</flags>" + Parent(command);
    text.append("<truestring>on</truestring><falsestring>off</falsestring><ALARMONSET color=\"0x0000C000\" />");
    text.append("<ALARMONNOTSET color=\"0x00000000\" /><packetoffset>").append(Hex(static_cast<std::uint32_t>(offset)));
    text.append("</packetoffset><operand>0x00000001</operand><bitop>AND</bitop><result>0x00000001</result>");
    return Add(text + "</ADXBITMASK>");
}

SmallDefinition& SmallDefinition::Dashboard(const std::string& title,
                                            const std::vector<std::pair<int, std::string>>& entries) {
    std::string text = Start("ADXDASHBOARD", "D" + title, title) + "><entrycount>" + std::to_string(entries.size());
    text.append("</entrycount>");
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& [type, item] = entries[i];
        text.append("\r\n    <ADXDGENTRY gaugetype=\"").append(std::to_string(type)).append("\"");
        if (!item.empty()) text.append(" itemidhash=\"").append(HashText(item)).append("\"");
        text.append(" left=\"").append(std::to_string(100 * i / entries.size())).append("\" top=\"0\" right=\"");
        text.append(std::to_string(100 * (i + 1) / entries.size())).append("\" bottom=\"60\" />");
    }
    return Add(text + "</ADXDASHBOARD>");
}

SmallDefinition& SmallDefinition::List(const std::string& title, const std::vector<std::string>& rows) {
    std::string text = Start("ADXLISTVIEW", "L" + title, title) + "><entrycount>" + std::to_string(rows.size());
    text.append("</entrycount>");
    for (const std::string& row : rows) {
        if (row.front() == '#') {
            text.append("<ADXLVENTRY entrytype=\"1\" flags=\"0x00000001\" title=\"").append(row.substr(1));
            text.append("\" color=\"00C04000\" />");
        } else {
            text.append("<ADXLVENTRY entrytype=\"0\" itemidhash=\"").append(HashText(row)).append("\" />");
        }
    }
    return Add(text + "</ADXLISTVIEW>");
}

}  // namespace corvex::test
