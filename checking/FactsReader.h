// Gathers the facts of a definition file from the events of the XML engine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "checking/FileFacts.h"
#include "files/adx/ADXElement.h"
#include "files/xml/ISAXCallback.h"

namespace corvex {

// Handles an element when its end, or the next element, is seen, as the loader does, so that its text is known.
class FactsReader final : public ISAXCallback {
public:
    explicit FactsReader(FileFacts& facts) : facts_(facts) {}

    std::int32_t StartDocument() override { return 0; }
    std::int32_t EndDocument() override { return 0; }
    std::int32_t StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                              std::uint32_t count) override;
    std::int32_t Characters(const char16_t* text, std::uint32_t length, std::int32_t more) override;
    std::int32_t EndElement(const char16_t* name, std::uint32_t length) override;
    std::int32_t StartCDATA() override { return 0; }
    std::int32_t CDATA(const char16_t*, std::uint32_t, std::int32_t) override { return 0; }
    std::int32_t EndCDATA() override { return 0; }
    std::int32_t Error(std::int32_t code, const char* message) override;

private:
    void HandlePending();
    void BeginObject();
    void HandleHeaderChild();
    void HandleObjectChild(FileFacts::Object& object);
    void HandleRow(FileFacts::Object& object);
    void NotePlace();

    FileFacts& facts_;
    bool inheader_ = false;
    std::optional<FileFacts::Object> object_;  // the one that is open
    ADXElement element_;
    std::string name_;  // of the pending element, empty when there is none
    std::uint32_t line_ = 0;
    std::size_t textlength_ = 0;
    bool longattribute_ = false;
};

}  // namespace corvex
