#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "files/xml/SAXParser.h"

namespace corvex {

// Writes each event down as one line of text, with characters outside ASCII as \uXXXX, and can refuse any of them.
class SAXRecorder final : public ISAXCallback {
public:
    std::vector<std::string> events;
    std::vector<std::string> places;  // "line:column" at each event
    std::string message;
    std::string file;         // filename seen at the last event
    std::string refuse;       // the event that answers with -1, by its first word
    std::int32_t answer = 0;  // what the others answer
    std::int32_t errorcode = 0;

    std::int32_t StartDocument() override { return Note("document"); }
    std::int32_t EndDocument() override { return Note("end"); }
    std::int32_t StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                              std::uint32_t count) override {
        std::string text = "<";
        text += Text(name, length);
        for (std::uint32_t i = 0; i < count; ++i) {
            text += ' ';
            text += Text(attributes[i].name, attributes[i].nameLength);
            text += "=[";
            text += Text(attributes[i].value, attributes[i].valueLength);
            text += ']';
        }
        return Note(text);
    }
    std::int32_t Characters(const char16_t* text, std::uint32_t length, std::int32_t more) override {
        return NotePiece("text", text, length, more);
    }
    std::int32_t EndElement(const char16_t* name, std::uint32_t length) override {
        std::string event = "/";
        event += Text(name, length);
        return Note(event);
    }
    std::int32_t StartCDATA() override { return Note("cdata"); }
    std::int32_t CDATA(const char16_t* text, std::uint32_t length, std::int32_t more) override {
        return NotePiece("data", text, length, more);
    }
    std::int32_t EndCDATA() override { return Note("endcdata"); }
    std::int32_t Error(std::int32_t code, const char* what) override {
        errorcode = code;
        message = what;
        return Note("error");
    }

    std::int32_t Parse(std::string_view text) {
        SAXParser parser;
        parser.SetCallback(this);
        return parser.ParseMemory(text.data(), text.size());
    }

private:
    static std::string Text(const char16_t* text, std::uint32_t length) {
        std::string out;
        for (const char16_t c : std::u16string_view(text, length)) {
            if (c >= 0x20 && c < 0x7F) {
                out += static_cast<char>(c);
                continue;
            }
            char code[8];
            std::snprintf(code, sizeof code, "\\u%04X", static_cast<unsigned>(c));
            out += code;
        }
        return out;
    }
    std::int32_t NotePiece(const char* kind, const char16_t* text, std::uint32_t length, std::int32_t more) {
        std::string event = kind;
        event += std::to_string(more);
        event += ' ';
        event += Text(text, length);
        return Note(event);
    }
    std::int32_t Note(const std::string& event) {
        events.push_back(event);
        places.push_back(std::to_string(line) + ":" + std::to_string(column));
        file = filename;
        return !refuse.empty() && event.starts_with(refuse) ? -1 : answer;
    }
};

using Events = std::vector<std::string>;

// The events of text between the document's start and end; the parse must succeed.
inline Events EventsOf(std::string_view text) {
    SAXRecorder recorder;
    if (recorder.Parse(text) != SAXParser::kOk) return {"failed: " + recorder.message};
    return {recorder.events.begin() + 1, recorder.events.end() - 1};
}

// Any ASCII text in 16-bit characters of either byte order, without a mark.
inline std::string Widened(std::string_view text, bool bigendian = false) {
    std::string out;
    for (const char c : text) {
        if (bigendian) out += '\0';
        out += c;
        if (!bigendian) out += '\0';
    }
    return out;
}

}  // namespace corvex
