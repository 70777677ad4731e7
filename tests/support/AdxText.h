// The texts of .adx files, built up call by call, for all tests that need one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "definition/ADXObject.h"

namespace corvex::test {

// The id of an object, or id and title: "RPM" or {"RPM", "Engine speed"}. Without a title of its own it bears its id.
struct AdxName {
    AdxName(const char* both) : id(both), title(both) {}  // NOLINT(google-explicit-constructor): names stand as texts
    AdxName(const std::string& both) : id(both), title(both) {}  // NOLINT(google-explicit-constructor)
    AdxName(std::string theId, std::string theTitle) : id(std::move(theId)), title(std::move(theTitle)) {}
    std::string id, title;
};

// "0x" and eight digits, as a file has words and hashes.
inline std::string AdxWord(std::uint32_t word) {
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "0x%08X", static_cast<unsigned>(word));
    return text.data();
}
// By what objects name each other. No id: 0, which is nobody's.
inline std::string AdxHash(const std::string& id) {
    return AdxWord(id.empty() ? 0 : HashId(id.data(), static_cast<std::uint32_t>(id.size())));
}
// An element that holds a text or elements: AdxTag("units", "rpm").
inline std::string AdxTag(const std::string& name, const std::string& inside) {
    return std::string("<").append(name).append(">").append(inside).append("</").append(name).append(">");
}
// The element by which an object says which command it belongs to.
inline std::string AdxParent(const std::string& command) {
    return AdxTag("parentcmdidhash", AdxHash(command));
}

// The root and what is added, in the order of the calls. A definition that can be scanned:
//
//     const std::string text = AdxText().Header("CONNECT", "MONITOR").Send("POLL", 24).Macro("CONNECT", {})
//                                  .Macro("MONITOR", {"POLL"}).Value({"RPM", "Engine speed"}, 3, "X*25").Text();
//     folder.Put("small.adx", text);
//
// `more` stands in front of what the call itself writes inside of the object, which therefore wins.
class AdxText {
public:
    explicit AdxText(const std::string& version = "0.50") : text_("<ADXFORMAT version=\"" + version + "\" />\r\n") {}

    // As it stands, with a line end.
    AdxText& Add(const std::string& text) {
        text_.append(text).append("\r\n");
        return *this;
    }
    // Any object.
    AdxText& Object(const std::string& element, const AdxName& name, const std::string& inside,
                    const std::string& attributes = {}) {
        std::string start = "<" + element + " id=\"" + name.id + "\" idhash=\"" + AdxHash(name.id);
        start.append("\" title=\"").append(name.title).append("\"").append(attributes).append(">");
        return Add(start.append(inside).append("</").append(element).append(">"));
    }

    // The commands' ids; an empty one is left out. 8192 baud unless `more` says otherwise.
    AdxText& Header(const std::string& connect, const std::string& monitor, const std::string& more = {}) {
        std::string inside = AdxTag("flags", "0x00") + AdxTag("baud", "8192") + more;
        if (!connect.empty()) inside += AdxTag("connectcmd", connect);
        if (!monitor.empty()) inside += AdxTag("monitorcmd", monitor);
        return Add(AdxTag("ADXHEADER", inside));
    }

    // Its whole reply is the packet, waited for 200 ms; the flag says that there is a reply.
    AdxText& Send(const AdxName& name, std::size_t replySize, const std::vector<std::uint8_t>& request = {0xF4, 0x57},
                  const std::string& more = {}) {
        std::string bytes;
        for (const std::uint8_t byte : request)
            bytes.append("0x").append(AdxWord(byte).substr(8)).append(" ");
        std::string inside = AdxTag("replytimeout", "200") + more;
        inside.append("<bytestring size=\"").append(AdxWord(static_cast<std::uint32_t>(request.size())));
        inside.append("\">").append(bytes).append("</bytestring>").append(AdxTag("packetoffset", "0"));
        inside.append(AdxTag("replysize", std::to_string(replySize)));
        return Object("ADXCSENDCOMMAND", name, inside.append(AdxTag("packetsize", std::to_string(replySize))),
                      " flags=\"0x00000001\"");
    }
    // Quiet for so many milliseconds, waited for 400 ms.
    AdxText& Silence(const AdxName& name, unsigned milliseconds) {
        return Object("ADXCLISTENSILENCE", name,
                      AdxTag("silencelen", std::to_string(milliseconds)) + AdxTag("totaltimeout", "400"));
    }
    AdxText& Trigger(const AdxName& name, std::uint32_t bits) {
        return Object("ADXCTRIGGER", name, AdxTag("triggertype", AdxWord(bits)));
    }
    // Each command once.
    AdxText& Macro(const AdxName& name, const std::vector<std::string>& commands) {
        std::string nodes;
        for (const std::string& command : commands)
            nodes.append("<NODE commandID=\"").append(command).append("\" repeatcount=\"1\" />");
        return Object("ADXMACRO", name, nodes, " repeatcount=\"1\"");
    }

    // A byte, of every command unless `more` has AdxParent. `inMath` stands inside of the equation's element, where
    // links are told.
    AdxText& Value(const AdxName& name, std::uint32_t offset, const std::string& equation = "X",
                   const std::string& more = {}, const std::string& inMath = {}) {
        std::string inside = more + AdxTag("packetoffset", AdxWord(offset));
        inside.append("<MATH equation=\"").append(equation).append("\">").append(inMath);
        return Object("ADXVALUE", name, inside.append("</MATH>"));
    }
    // What Value takes as `more`: alarms below and above, which are looked at.
    static std::string Alarms(const std::string& low, const std::string& high) {
        return "<flags>0x0000000C</flags><alarms low=\"" + low + "\" high=\"" + high + "\" />";
    }
    // The lowest bit of a byte, "on" or "off".
    AdxText& Bit(const AdxName& name, std::uint32_t offset, const std::string& more = {}) {
        return Object("ADXBITMASK", name,
                      AdxTag("truestring", "on") + AdxTag("falsestring", "off") + more +
                          AdxTag("packetoffset", AdxWord(offset)) + AdxTag("operand", "0x00000001") +
                          AdxTag("bitop", "AND") + AdxTag("result", "0x00000001"));
    }

    // Gauge type and item's id of each, side by side. An empty id: no item.
    AdxText& Dashboard(const AdxName& name, const std::vector<std::pair<int, std::string>>& gauges) {
        std::string inside = AdxTag("entrycount", std::to_string(gauges.size()));
        for (std::size_t i = 0; i < gauges.size(); ++i) {
            inside.append("<ADXDGENTRY gaugetype=\"").append(std::to_string(gauges[i].first)).append("\"");
            if (!gauges[i].second.empty()) inside.append(" itemidhash=\"" + AdxHash(gauges[i].second) + "\"");
            inside.append(" left=\"").append(std::to_string(100 * i / gauges.size())).append("\" top=\"0\" right=\"");
            inside.append(std::to_string(100 * (i + 1) / gauges.size())).append("\" bottom=\"60\" />");
        }
        return Object("ADXDASHBOARD", name, inside);
    }
    // The items' ids; one that begins with '#' is a bold heading of that title in 0xC04000.
    AdxText& List(const AdxName& name, const std::vector<std::string>& rows) {
        std::string inside = AdxTag("entrycount", std::to_string(rows.size()));
        for (const std::string& row : rows) {
            if (row.front() == '#') {
                inside.append("<ADXLVENTRY entrytype=\"1\" flags=\"0x00000001\" title=\"").append(row.substr(1));
                inside.append("\" color=\"00C04000\" />");
            } else {
                inside.append("<ADXLVENTRY entrytype=\"0\" itemidhash=\"" + AdxHash(row) + "\" />");
            }
        }
        return Object("ADXLISTVIEW", name, inside);
    }

    const std::string& Text() const { return text_; }
    operator const std::string&() const { return text_; }  // NOLINT(google-explicit-constructor): goes where texts go

private:
    std::string text_;
};

}  // namespace corvex::test
