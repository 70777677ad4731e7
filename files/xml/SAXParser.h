#pragma once

#include <cstddef>
#include <cstdint>

#include "files/xml/ISAXCallback.h"
#include "files/xml/SAXInput.h"

namespace corvex {

// Pushes the events of an XML text at an ISAXCallback, from fixed buffers, whatever the size of the input.
//
// It keeps no tree, matches no end tag to its start tag, refuses no repeated attribute, and knows no namespaces or
// document types. Any bytes end in a result, in time linear in their number. One document at a time, on one thread;
// the object may be used again afterwards. It takes about 25 KB, and nothing is allocated while events run.
class SAXParser {
public:
    static constexpr std::int32_t kOk = 0;
    static constexpr std::int32_t kNoCallback = static_cast<std::int32_t>(0x80004002U);
    static constexpr std::int32_t kRefused = static_cast<std::int32_t>(0x80004004U);  // by the receiver
    static constexpr std::int32_t kOpenError = static_cast<std::int32_t>(0x861B0001U);
    static constexpr std::int32_t kSyntaxError = static_cast<std::int32_t>(0x861B0002U);

    static constexpr std::size_t kTokenSize = 2048;  // characters of one tag, or of one piece of text
    static constexpr std::uint32_t kMaxAttributes = 32;

    SAXParser() = default;
    SAXParser(const SAXParser&) = delete;
    SAXParser& operator=(const SAXParser&) = delete;

    // Not owned; must outlive the parse.
    void SetCallback(ISAXCallback* receiver) { callback = receiver; }

    // Parses the file and closes it. kOk, or one of the codes above. path names the file in the system's narrow
    // encoding; a null one does not open. A file that opens but cannot be read at all, such as a directory, counts as
    // one that does not open; a read error further on is an unexpected end. Others may read the file meanwhile, and
    // where the system knows such a thing not write it.
    [[nodiscard]] std::int32_t ParseFile(const char* path);

    // Parses size bytes, which need not be terminated and stay the caller's.
    [[nodiscard]] std::int32_t ParseMemory(const void* data, std::size_t size);

private:
    std::int32_t ParseDocument();
    std::int32_t ParseContent();
    std::int32_t FlushText(std::int32_t more);
    std::int32_t ParseMarkup();
    std::int32_t ParseDeclaration();
    std::int32_t SkipComment();
    std::int32_t ParseCDATA();
    std::int32_t GatherCDATA();
    std::int32_t FlushCDATA(std::uint32_t brackets);
    std::int32_t ParseEndTag();
    std::int32_t SkipInstruction();
    std::int32_t ParseStartTag();
    std::int32_t ParseAttribute(SAXAttribute& attribute);
    std::int32_t ParseValue();
    std::int32_t ParseName();
    std::int32_t SkipBlanks();
    std::int32_t ResolveEntity(char16_t& character);
    std::int32_t ResolveNumber(char16_t& character);
    std::int32_t ResolveNamed(char16_t& character);

    std::int32_t NextChar();
    std::int32_t Expect(char16_t character, const char* otherwise);
    std::int32_t Store(char16_t character);
    template <std::uint8_t Stop>
    void StoreRun();
    void ResetToken() {
        tokenpos = tokenbuffer;
        seen_ = 0;
    }
    std::uint32_t TokenLength() const { return static_cast<std::uint32_t>(tokenpos - tokenbuffer); }
    bool TokenFull() const { return tokenpos == tokenbuffer + kTokenSize; }
    std::int32_t SyntaxError(const char* format, ...) __attribute__((format(printf, 2, 3)));
    std::int32_t OpenError();

    ISAXCallback* callback = nullptr;
    SAXInput input_;
    char16_t* tokenpos = tokenbuffer;
    std::uint8_t seen_ = 0;  // the classes of the gathered text's characters
    char16_t tokenbuffer[kTokenSize];
    SAXAttribute attributes_[kMaxAttributes];
};

}  // namespace corvex
