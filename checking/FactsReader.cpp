#include "checking/FactsReader.h"

#include <algorithm>
#include <sstream>
#include <string_view>

#include "export/text/ObjectNames.h"
#include "files/xml/SAXParser.h"

namespace corvex {

namespace {

struct KnownChildren {
    std::uint32_t type;
    const char* names;  // blanks around each
};

constexpr KnownChildren kKnown[] = {
    {kTypeValue,
     " desc flags parentcmdidhash units packetoffset sizeinbits range alarms digcount outputtype datatype unittype "
     "math "
     "var "},
    {kTypeBitmask,
     " desc flags parentcmdidhash truestring falsestring alarmonset alarmonnotset packetoffset sizeinbits operand "
     "bitop "
     "result "},
    {kTypeLookupTable, " desc flags inputtype outputtype lookupmode entrycount tableentry "},
    {kTypeListView, " desc flags entrycount adxlventry "},
    {kTypeDashboard, " desc flags entrycount adxdgentry "},
    {kTypeMonitor, " desc flags entrycount adxmonseries "},
    {kTypeHistogram, " desc flags parentcmdidhash rows cols xmin xmax ymin ymax historysize xidhash yidhash zidhash "},
    {kTypeListenSilence, " desc silencelen totaltimeout "},
    {kTypeListenChatter, " desc listentimeout bytestring "},
    {kTypeSendCommand, " desc bytestring replysize replytimeout packetoffset packetsize "},
    {kType160BaudListen, " desc packetsize "},
    {kTypeTrigger, " desc triggertype "},
    {kTypeMacro, " desc node "},
};
constexpr const char* kKnownHeader =
    " flags objectcount commandcount userversion author desc baud connectcmd monitorcmd disconnectcmd ";

bool Holds(const char* names, const std::string& name) {
    std::string key = ' ' + name + ' ';
    std::transform(key.begin(), key.end(), key.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return std::string_view(names).find(key) != std::string_view::npos;
}

const char* KnownFor(std::uint32_t type) {
    for (const KnownChildren& known : kKnown) {
        if (known.type == type) return known.names;
    }
    return "";
}

bool IsSpace(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

std::uint32_t CountTokens(std::string_view text) {
    std::istringstream tokens{std::string(text)};
    std::string token;
    std::uint32_t count = 0;
    while (tokens >> token)
        ++count;
    return count;
}

std::string Narrow(const char16_t* name, std::uint32_t length) {
    std::string text;
    for (std::uint32_t i = 0; i < length; ++i)
        text += NarrowCharacter(name[i]);
    return text;
}

}  // namespace

std::int32_t FactsReader::StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                                       std::uint32_t count) {
    HandlePending();
    name_ = Narrow(name, length);
    line_ = line;
    textlength_ = 0;
    longattribute_ = std::any_of(attributes, attributes + count, [](const SAXAttribute& attribute) {
        return attribute.valueLength >= ADXElement::kAttributeValueSize;
    });
    element_.SetName(name, length);
    element_.ClearText();
    element_.SetAttributes(attributes, count);
    return 0;
}

std::int32_t FactsReader::Characters(const char16_t* text, std::uint32_t length, std::int32_t) {
    // What lies between two elements with blanks around it is not the text of the one before.
    if (!std::all_of(text, text + length, IsSpace)) textlength_ += length;
    element_.SetText(text, length);
    return 0;
}

std::int32_t FactsReader::EndElement(const char16_t* name, std::uint32_t length) {
    HandlePending();
    const std::string closed = Narrow(name, length);
    const NamedKind* kind = KindOfElement(closed);
    if (kind != nullptr && object_ && object_->type == kind->type) {
        facts_.objects.push_back(std::move(*object_));
        object_.reset();
    }
    if (SameName(closed, "ADXHEADER")) inheader_ = false;
    return 0;
}

std::int32_t FactsReader::Error(std::int32_t, const char* message) {
    facts_.error = message;
    NotePlace();
    return 0;
}

void FactsReader::NotePlace() {
    facts_.errorline = line;
    facts_.errorcolumn = column;
}

void FactsReader::HandlePending() {
    if (name_.empty()) return;
    if (KindOfElement(name_) != nullptr) {
        BeginObject();
    } else if (SameName(name_, "ADXHEADER")) {
        inheader_ = true;
        facts_.headerline = line_;
    } else if (SameName(name_, "ADXFORMAT")) {
        facts_.formatline = line_;
    } else if (inheader_) {
        HandleHeaderChild();
    } else if (object_) {
        HandleObjectChild(*object_);
    } else {
        facts_.unknown.push_back("<" + name_ + ">");
    }
    name_.clear();
}

void FactsReader::BeginObject() {
    inheader_ = false;
    object_.emplace();
    object_->type = KindOfElement(name_)->type;
    object_->line = line_;
    object_->id = element_.Attribute("id");
    object_->title = element_.Attribute("title");
    object_->baseflags = HexText(element_.Attribute("baseflags")) != 0;
    if (longattribute_) object_->toolong.push_back("an attribute of <" + name_ + ">");
}

void FactsReader::HandleHeaderChild() {
    if (!Holds(kKnownHeader, name_)) facts_.unknown.push_back("<" + name_ + ">");
    if (textlength_ >= ADXElement::kTextSize) facts_.toolong.push_back("<" + name_ + ">");
    if (element_.Is("objectcount") || element_.Is("commandcount"))
        facts_.objectcount = facts_.objectcount.value_or(0) + element_.Dec();
    if (element_.Is("connectcmd")) facts_.connectcmd = element_.Text();
    if (element_.Is("monitorcmd")) facts_.monitorcmd = element_.Text();
    if (element_.Is("disconnectcmd")) facts_.disconnectcmd = element_.Text();
}

void FactsReader::HandleObjectChild(FileFacts::Object& object) {
    if (!Holds(KnownFor(object.type), name_)) object.unknown.push_back("<" + name_ + ">");
    if (textlength_ >= ADXElement::kTextSize) object.toolong.push_back("<" + name_ + ">");
    if (longattribute_) object.toolong.push_back("an attribute of <" + name_ + ">");
    if (element_.Is("entrycount")) {
        object.entrycountGiven = true;
        object.entrycount = element_.Dec();
    } else if (element_.Is("outputtype")) {
        object.outputtypeGiven = true;
        object.outputtype = element_.Dec();
    } else if (element_.Is("MATH")) {
        object.equation = element_.Attribute("equation");
    } else if (element_.Is("VAR")) {
        object.vars += element_.Attribute("varID").substr(0, 1);
    } else if (element_.Is("bytestring")) {
        object.bytes = CountTokens(element_.Text());
        object.bytesize = element_.Attribute("size");
    } else {
        HandleRow(object);
    }
}

void FactsReader::HandleRow(FileFacts::Object& object) {
    const bool table = element_.Is("tableentry");
    const bool list = element_.Is("ADXLVENTRY");
    const bool series = element_.Is("ADXMONSERIES");
    if (!table && !list && !series && !element_.Is("ADXDGENTRY")) return;
    ++object.rows;
    if (list && !object.entrycountGiven) ++object.rowsBeforeSize;
    if (table && !object.outputtypeGiven) ++object.rowsBeforeType;
    if (series) object.serieshashes.push_back(HexText(element_.Attribute("itemidhash")));
}

FileFacts ReadFileFacts(const char* path) {
    FileFacts facts;
    FactsReader reader(facts);
    SAXParser parser;
    parser.SetCallback(&reader);
    // What went wrong has reached the reader.
    static_cast<void>(parser.ParseFile(path));
    return facts;
}

}  // namespace corvex
