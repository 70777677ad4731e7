#include "files/adx/ADXParser.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "files/adx/LinkPass.h"
#include "files/xml/SAXParser.h"

namespace corvex {
namespace {

constexpr std::int32_t kErrorFail = static_cast<std::int32_t>(0x80004005);
constexpr float kOldestVersion = 0.5F;

}  // namespace

int ADXParser::Parse(const char* path, ADXDefinition& definition, IProgress* progress) {
    Begin(definition, progress);
    SAXParser parser;
    parser.SetCallback(this);
    return Finish(parser.ParseFile(path));
}

int ADXParser::ParseMemory(const void* bytes, std::size_t size, ADXDefinition& definition, IProgress* progress) {
    Begin(definition, progress);
    SAXParser parser;
    parser.SetCallback(this);
    return Finish(parser.ParseMemory(bytes, size));
}

void ADXParser::Begin(ADXDefinition& definition, IProgress* progress) {
    definition_ = &definition;
    progress_ = progress;
    state_ = kRootState;
    element_.Clear();
    closing_ = false;
    object_.reset();
    position_ = {};
    header_ = {};
    validversion_ = failed_ = false;
    error_[0] = '\0';
    place_ = {};
}

int ADXParser::Finish(std::int32_t code) {
    object_.reset();
    if (progress_ != nullptr) progress_->SetPosition(0);
    return code == 0 && validversion_ && !failed_ ? 1 : 0;
}

std::int32_t ADXParser::StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                                     std::uint32_t count) {
    HandleElement();
    element_.SetName(name, length);
    element_.ClearText();
    element_.SetAttributes(attributes, count);
    element_.SetLine(line);
    return 0;
}

// The piece takes the place of the text so far, so of a long text, or one with a comment in it, the last piece counts.
std::int32_t ADXParser::Characters(const char16_t* text, std::uint32_t length, std::int32_t) {
    element_.SetText(text, length);
    return 0;
}

std::int32_t ADXParser::EndElement(const char16_t* name, std::uint32_t length) {
    HandleElement();
    element_.SetName(name, length);
    element_.ClearText();
    closing_ = true;
    HandleElement();
    closing_ = false;
    element_.ClearName();
    return 0;
}

// An element still pending here has no end tag and is not handled.
std::int32_t ADXParser::EndDocument() {
    if (!failed_ && validversion_) ResolveLinks(*definition_, header_);
    return 0;
}

std::int32_t ADXParser::Error(std::int32_t code, const char* message) {
    failed_ = true;
    if (code == kErrorFail) {
        place_ = {element_.Line(), std::nullopt};
    } else {
        place_ = code == SAXParser::kOpenError ? ErrorPlace() : ErrorPlace{line, column};
    }
    const std::size_t length = std::min(std::strlen(message), kErrorSize - 1);
    std::memcpy(error_, message, length);
    error_[length] = '\0';
    return 0;
}

void ADXParser::HandleElement() {
    if (element_.IsEmpty()) return;
    const bool own = EnterState();
    const ElementUse use = state_ == kRootState     ? ReadRoot()
                           : state_ == kHeaderState ? ReadHeader(own)
                                                    : ReadObject(own);
    if (observer_ != nullptr && !closing_) observer_->ElementRead(element_, use);
}

// True when the element is the one that the state belongs to.
bool ADXParser::EnterState() {
    if (!element_.BeginsWith("ADX")) return false;  // spares most elements the walk
    if (element_.Is("ADXHEADER")) {
        state_ = kHeaderState;
        return true;
    }
    for (std::size_t kind = 0; kind < kObjectKinds.size(); ++kind) {
        if (!element_.Is(kObjectKinds[kind].element)) continue;
        state_ = kFirstObjectState + kind;
        return true;
    }
    return false;
}

ElementUse ADXParser::ReadRoot() {
    if (closing_ || !element_.Is("ADXFORMAT")) return ElementUse::kNone;
    const std::string_view version = element_.Attribute("version");
    if (version.data() == nullptr) return ElementUse::kFormat;
    // Written so that what is no number at all is too low as well.
    if (DecimalFloat(version) >= kOldestVersion) {
        validversion_ = true;
    } else {
        Error(kErrorFail, "File version is out of date.");
    }
    return ElementUse::kFormat;
}

ElementUse ADXParser::ReadHeader(bool own) {
    if (!own) {
        const bool known = !closing_ && ReadHeaderChild(*definition_, header_, element_);
        return known ? ElementUse::kField : ElementUse::kNone;
    }
    if (closing_ && progress_ != nullptr) {
        progress_->SetRange(header_.objectcount + header_.commandcount);
        progress_->SetPosition(0);
    }
    if (closing_ && observer_ != nullptr) observer_->HeaderEnded();
    return ElementUse::kHeader;
}

// An object state is entered only by its own element, which makes or delivers the object: the object that a child
// finds is of the state's kind, or there is none.
ElementUse ADXParser::ReadObject(bool own) {
    const ObjectKind& kind = kObjectKinds[state_ - kFirstObjectState];
    if (!own) {
        const bool known = !closing_ && object_ != nullptr && kind.readChild(*object_, element_, position_);
        return known ? ElementUse::kField : ElementUse::kNone;
    }
    if (!closing_) {
        object_ = kind.make(element_);
        position_ = {};
    } else {
        if (observer_ != nullptr && object_ != nullptr) observer_->ObjectEnded(*object_);
        definition_->InsertAt(std::move(object_), 0xFFFFFFFF);
        if (progress_ != nullptr) progress_->Step();
    }
    return ElementUse::kObject;
}

}  // namespace corvex
