#include "files/xml/SAXParser.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <string_view>

namespace corvex {

namespace {

constexpr std::size_t kMessageSize = 160;
constexpr const char* kUnexpectedEnd = "Unexpected EOF while parsing XML file";

struct Entity {
    std::u16string_view name;
    char16_t character;
};
// In the order of comparison: a prefix takes the first that begins with it.
constexpr Entity kEntities[] = {{u"lt", u'<'}, {u"gt", u'>'}, {u"amp", u'&'}, {u"apos", u'\''}, {u"quot", u'"'}};

std::int32_t Answer(std::int32_t status) {
    return status < 0 ? SAXParser::kRefused : SAXParser::kOk;
}

int HexDigit(char16_t c) {
    if (IsDigit(c)) return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return -1;
}

// Closes the input and takes the path back, also when the receiver throws.
struct ParseScope {
    ParseScope(SAXInput& opened, ISAXCallback& receiver) : input(opened), callback(receiver) {}
    ~ParseScope() {
        input.Close();
        callback.filename = "";
    }
    SAXInput& input;
    ISAXCallback& callback;
};

}  // namespace

std::int32_t SAXParser::ParseFile(const char* path) {
    if (callback == nullptr) return kNoCallback;
    ParseScope scope(input_, *callback);
    callback->filename = path == nullptr ? "" : path;
    if (!input_.OpenFile(path, callback)) return OpenError();
    return ParseDocument();
}

std::int32_t SAXParser::ParseMemory(const void* data, std::size_t size) {
    if (callback == nullptr) return kNoCallback;
    ParseScope scope(input_, *callback);
    callback->filename = "";
    input_.OpenMemory(data, size, callback);
    return ParseDocument();
}

std::int32_t SAXParser::ParseDocument() {
    if (callback->StartDocument() < 0) return kRefused;
    bool recognized = false;
    if (input_.DetectEncoding(recognized) != SAXInput::Status::Ok) return OpenError();
    if (!recognized) return SyntaxError("Unrecognized encoding (parser does not support UTF-8 language encodings)");
    ResetToken();
    return ParseContent();
}

std::int32_t SAXParser::ParseContent() {
    for (;;) {
        StoreRun<kTextStop>();
        if (TokenFull()) {
            if (const std::int32_t result = FlushText(1); result != kOk) return result;
        }
        const SAXInput::Status status = input_.Next();
        if (status == SAXInput::Status::ReadError) return SyntaxError("%s", kUnexpectedEnd);
        if (status == SAXInput::Status::End) {
            if (const std::int32_t result = FlushText(0); result != kOk) return result;
            return Answer(callback->EndDocument());
        }
        char16_t character = input_.Current();
        if (character == u'<') {
            if (const std::int32_t result = FlushText(0); result != kOk) return result;
            if (const std::int32_t result = ParseMarkup(); result != kOk) return result;
            ResetToken();
            continue;
        }
        if (character == u'&') {
            if (const std::int32_t result = ResolveEntity(character); result != kOk) return result;
        }
        *tokenpos++ = character;
        if (!IsBlank(character)) seen_ |= kNonBlank;
    }
}

// Each piece is judged by itself: one that is all blank is dropped, whatever came before it.
std::int32_t SAXParser::FlushText(std::int32_t more) {
    std::int32_t status = 0;
    if (seen_ & kNonBlank) status = callback->Characters(tokenbuffer, TokenLength(), more);
    ResetToken();
    return Answer(status);
}

std::int32_t SAXParser::ParseMarkup() {
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    switch (input_.Current()) {
        case u'!':
            return ParseDeclaration();
        case u'/':
            return ParseEndTag();
        case u'?':
            return SkipInstruction();
        default:
            input_.PushBack();
            return ParseStartTag();
    }
}

std::int32_t SAXParser::ParseDeclaration() {
    constexpr const char* kNoSection = "Expecting '<![CDATA['";
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    if (input_.Current() == u'-') {
        if (const std::int32_t result = Expect(u'-', "Expecting '-' after '<!-'"); result != kOk) return result;
        return SkipComment();
    }
    if (input_.Current() != u'[') return SyntaxError(kNoSection);
    for (const char16_t letter : std::u16string_view(u"CDATA[")) {
        if (const std::int32_t result = Expect(letter, kNoSection); result != kOk) return result;
    }
    return ParseCDATA();
}

std::int32_t SAXParser::SkipComment() {
    std::uint32_t hyphens = 0;
    for (;;) {
        if (hyphens == 0) input_.SkipRun<kCommentStop>();
        if (const std::int32_t result = NextChar(); result != kOk) return result;
        if (input_.Current() == u'>' && hyphens == 2) return kOk;
        hyphens = input_.Current() == u'-' ? std::min(hyphens + 1, 2U) : 0;
    }
}

std::int32_t SAXParser::SkipInstruction() {
    do {
        input_.SkipRun<kInstructionStop>();
        if (const std::int32_t result = NextChar(); result != kOk) return result;
    } while (input_.Current() != u'>');
    return kOk;
}

std::int32_t SAXParser::ParseCDATA() {
    if (callback->StartCDATA() < 0) return kRefused;
    if (const std::int32_t result = GatherCDATA(); result != kOk) return result;
    if (callback->CDATA(tokenbuffer, TokenLength(), 0) < 0) return kRefused;
    return Answer(callback->EndCDATA());
}

std::int32_t SAXParser::GatherCDATA() {
    std::uint32_t brackets = 0;
    for (;;) {
        if (brackets == 0) StoreRun<kSectionStop>();
        if (TokenFull()) {
            if (const std::int32_t result = FlushCDATA(brackets); result != kOk) return result;
        }
        if (const std::int32_t result = NextChar(); result != kOk) return result;
        *tokenpos++ = input_.Current();
        if (input_.Current() == u'>' && brackets == 2) {
            tokenpos -= 3;
            return kOk;
        }
        brackets = input_.Current() == u']' ? std::min(brackets + 1, 2U) : 0;
    }
}

// Brackets that may yet prove to close the section stay behind, so that the end can be dropped from one piece.
std::int32_t SAXParser::FlushCDATA(std::uint32_t brackets) {
    const std::int32_t status = callback->CDATA(tokenbuffer, TokenLength() - brackets, 1);
    ResetToken();
    tokenpos = std::fill_n(tokenpos, brackets, u']');
    return Answer(status);
}

// The receiver hears of the end before the tag is known to be whole.
std::int32_t SAXParser::ParseEndTag() {
    if (const std::int32_t result = ParseName(); result != kOk) return result;
    if (callback->EndElement(tokenbuffer, TokenLength()) < 0) return kRefused;
    if (const std::int32_t result = SkipBlanks(); result != kOk) return result;
    return Expect(u'>', "Expecting '>' after name for closing entity reference");
}

std::int32_t SAXParser::ParseStartTag() {
    if (const std::int32_t result = ParseName(); result != kOk) return result;
    const std::uint32_t length = TokenLength();
    std::uint32_t count = 0;
    bool empty = false;
    for (;;) {
        if (const std::int32_t result = SkipBlanks(); result != kOk) return result;
        if (const std::int32_t result = NextChar(); result != kOk) return result;
        if (input_.Current() == u'>') break;
        if (input_.Current() == u'/') {
            if (const std::int32_t result = Expect(u'>', "Expecting '>' after '/' in element tag"); result != kOk) {
                return result;
            }
            empty = true;
            break;
        }
        if (count == kMaxAttributes) {
            return SyntaxError("Elements may not have more than %d attributes", static_cast<int>(kMaxAttributes));
        }
        input_.PushBack();
        if (const std::int32_t result = ParseAttribute(attributes_[count]); result != kOk) return result;
        ++count;
    }
    if (callback->StartElement(tokenbuffer, length, attributes_, count) < 0) return kRefused;
    return empty ? Answer(callback->EndElement(tokenbuffer, length)) : kOk;
}

std::int32_t SAXParser::ParseAttribute(SAXAttribute& attribute) {
    attribute.name = tokenpos;
    if (const std::int32_t result = ParseName(); result != kOk) return result;
    attribute.nameLength = static_cast<std::uint32_t>(tokenpos - attribute.name);
    if (const std::int32_t result = SkipBlanks(); result != kOk) return result;
    if (const std::int32_t result = Expect(u'=', "Expecting '=' character after attribute name"); result != kOk) {
        return result;
    }
    if (const std::int32_t result = SkipBlanks(); result != kOk) return result;
    attribute.value = tokenpos;
    if (const std::int32_t result = ParseValue(); result != kOk) return result;
    attribute.valueLength = static_cast<std::uint32_t>(tokenpos - attribute.value);
    return kOk;
}

std::int32_t SAXParser::ParseValue() {
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    const char16_t quote = input_.Current();
    if (quote != u'"' && quote != u'\'') return SyntaxError("Attribute values must be enclosed in quotes");
    for (;;) {
        StoreRun<kValueStop>();
        if (const std::int32_t result = NextChar(); result != kOk) return result;
        char16_t character = input_.Current();
        if (character == quote) return kOk;
        if (character == u'<') return SyntaxError("Illegal character '<' in element tag");
        if (character == u'&') {
            if (const std::int32_t result = ResolveEntity(character); result != kOk) return result;
        }
        if (const std::int32_t result = Store(character); result != kOk) return result;
    }
}

// Leaves the first character behind the name to be read again.
std::int32_t SAXParser::ParseName() {
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    if (!IsNameStart(input_.Current())) return SyntaxError("Names must start with an alphabetic character or _ or :");
    do {
        if (const std::int32_t result = Store(input_.Current()); result != kOk) return result;
        StoreRun<kNameStop>();
        if (const std::int32_t result = NextChar(); result != kOk) return result;
    } while (IsNameChar(input_.Current()));
    input_.PushBack();
    return kOk;
}

std::int32_t SAXParser::SkipBlanks() {
    do {
        if (const std::int32_t result = NextChar(); result != kOk) return result;
    } while (IsBlank(input_.Current()));
    input_.PushBack();
    return kOk;
}

std::int32_t SAXParser::ResolveEntity(char16_t& character) {
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    if (input_.Current() == u'#') return ResolveNumber(character);
    if (!IsNameStart(input_.Current())) return SyntaxError("Expecting entity name after &");
    input_.PushBack();
    return ResolveNamed(character);
}

// Kept in 16 bits, any number of digits; none at all give character 0.
std::int32_t SAXParser::ResolveNumber(char16_t& character) {
    std::uint32_t value = 0;
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    const bool hex = input_.Current() == u'x';
    if (hex) {
        if (const std::int32_t result = NextChar(); result != kOk) return result;
    }
    while (input_.Current() != u';') {
        const int digit = HexDigit(input_.Current());
        if (hex && digit < 0) return SyntaxError("Expected hex digit as part of &#x escape sequence");
        if (!hex && (digit < 0 || digit > 9)) {
            return SyntaxError("Expected decimal digit as part of &# escape sequence");
        }
        value = (value * (hex ? 16 : 10) + static_cast<std::uint32_t>(digit)) & 0xFFFF;
        if (const std::int32_t result = NextChar(); result != kOk) return result;
    }
    character = static_cast<char16_t>(value);
    return kOk;
}

// Only the length of the name given is compared, so that "a" means the ampersand: saved definitions depend on it.
std::int32_t SAXParser::ResolveNamed(char16_t& character) {
    char16_t name[5];  // one more than the longest that can match
    std::size_t length = 0;
    for (;;) {
        if (const std::int32_t result = NextChar(); result != kOk) return result;
        if (!IsNameChar(input_.Current())) break;
        if (length < std::size(name)) name[length++] = input_.Current();
    }
    const std::u16string_view given(name, length);
    for (const Entity& entity : kEntities) {
        if (!entity.name.starts_with(given)) continue;
        if (input_.Current() != u';') return SyntaxError("Expected terminating ; for entity reference");
        character = entity.character;
        return kOk;
    }
    return SyntaxError("Unrecognized entity name after & - (should be lt, gt, amp, apos, or quot)");
}

std::int32_t SAXParser::NextChar() {
    return input_.Next() == SAXInput::Status::Ok ? kOk : SyntaxError("%s", kUnexpectedEnd);
}

std::int32_t SAXParser::Expect(char16_t character, const char* otherwise) {
    if (const std::int32_t result = NextChar(); result != kOk) return result;
    return input_.Current() == character ? kOk : SyntaxError("%s", otherwise);
}

std::int32_t SAXParser::Store(char16_t character) {
    if (TokenFull()) {
        return SyntaxError("Total element tag size may not be more than %d characters", static_cast<int>(kTokenSize));
    }
    *tokenpos++ = character;
    return kOk;
}

template <std::uint8_t Stop>
void SAXParser::StoreRun() {
    tokenpos += input_.TakeRun<Stop>(tokenpos, kTokenSize - TokenLength(), seen_);
}

std::int32_t SAXParser::SyntaxError(const char* format, ...) {
    char message[kMessageSize];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message, sizeof message, format, arguments);
    va_end(arguments);
    callback->Error(kSyntaxError, message);
    return kSyntaxError;
}

std::int32_t SAXParser::OpenError() {
    callback->Error(kOpenError, "Error opening file");
    return kOpenError;
}

}  // namespace corvex
